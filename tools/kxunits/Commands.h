// The commands of kxunits.
#pragma once

#include <vector>

#include "CommandLine.h"

namespace kxunits {

class Session;

struct Command {
    CommandSpec syntax;
    int (*run)(Session& session, Arguments const& args);  // returns the exit code
};

// In the order the help lists them.
std::vector<Command> const& AllCommands();

int RunFormat(Session& session, Arguments const& args);
int RunParse(Session& session, Arguments const& args);
int RunConvert(Session& session, Arguments const& args);
int RunUnits(Session& session, Arguments const& args);
int RunLocales(Session& session, Arguments const& args);
int RunRepl(Session& session, Arguments const& args);

}  // namespace kxunits
