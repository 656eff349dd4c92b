// kxunits as a user runs it: exit codes, error messages, listings, the repl through
// a pipe, and format/parse/convert round trips in several locales.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

using ::testing::HasSubstr;

struct ToolRun {
    int exitCode = -1;
    QString out, err;
};

// Runs the tool with a fixed environment: no user locale (so the default is en-US)
// unless `lang` names one.
ToolRun RunTool(QStringList const& args, QByteArray const& input = QByteArray(), QString const& lang = QStringLiteral("C")) {
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("LANGUAGE"));
    env.remove(QStringLiteral("LC_MESSAGES"));
    env.insert(QStringLiteral("LC_ALL"), lang);
    env.insert(QStringLiteral("LANG"), lang);
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(KXUNITS_TOOL), args);
    ToolRun run;
    if (!process.waitForStarted(10000)) return run;
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(60000);
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    // A crash is no exit code: a signal must not pass for any expected status.
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1000;
    return run;
}

std::string Describe(QStringList const& args, ToolRun const& run) {
    return ("kxunits " + args.join(QLatin1Char(' ')).left(200) + "\nexit " + QString::number(run.exitCode) + "\nstdout:\n" +
            run.out + "stderr:\n" + run.err)
        .toStdString();
}

QStringList Lines(QString const& text) { return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }

// ---------------------------------------------------------------------------
// Command line: every mistake is exit 2 with a message that names it.

struct CommandLineCase {
    char const* name;
    QStringList args;
    int exitCode;
    char const* stderrPart;  // expected on standard error
};

TEST(KxunitsCommandLine, MistakesExitWithTwoAndSayWhatWasWrong) {
    CommandLineCase const cases[] = {
        {"no command", {}, 2, "Usage: kxunits COMMAND"},
        {"unknown command", {"frobnicate"}, 2, "unknown command \"frobnicate\""},
        {"help of unknown command", {"help", "frobnicate"}, 2, "help: unknown command"},
        {"unknown option", {"format", "1", "Meter", "--bogus"}, 2, "unknown option --bogus"},
        {"option without its value", {"format", "1", "Meter", "--precision"}, 2, "--precision needs a value"},
        {"option given twice", {"format", "1", "Meter", "--locale", "en-US", "--locale=de-DE"}, 2, "given twice"},
        {"flag with a value", {"units", "--all=yes"}, 2, "--all takes no value"},
        {"missing arguments", {"format", "1"}, 2, "missing arguments"},
        {"too many arguments", {"parse", "1 m", "Meter", "Foot"}, 2, "too many arguments"},
        {"help after -- is text", {"parse", "--", "--help", "Meter"}, 2, "cannot read \"--help\" as Length"},
        {"value is text", {"format", "abc", "Meter"}, 2, "VALUE must be a finite number"},
        {"value is not finite", {"format", "inf", "Meter"}, 2, "VALUE must be a finite number"},
        {"value overflows", {"format", "1e999", "Meter"}, 2, "VALUE must be a finite number"},
        {"value with unit", {"format", "1.5 m", "Meter"}, 2, "kxunits convert"},
        {"misspelt unit", {"format", "1", "Metre"}, 2, "did you mean Meter"},
        {"group for a unit", {"format", "1", "0x2000"}, 2, "0x2000 is the group Length"},
        {"identifier not in catalogue", {"format", "1", "0x2FFF"}, 2, "0x2FFF is no unit or symbol"},
        {"identifier too large", {"format", "1", "0x1FFFFFFFF"}, 2, "unknown unit or symbol"},
        {"case-insensitive clash", {"format", "1", "MM"}, 2, "names several symbols when case is ignored: Mm, mm"},
        {"empty unit", {"format", "1", ""}, 2, "an empty name"},
        {"very long unit name", {"format", "1", QString(100000, QLatin1Char('m'))}, 2, "unknown unit or symbol"},
        {"symbol of another kind", {"format", "1", "Meter", "--symbol", "Kilogram"}, 2,
         "--symbol Kilogram writes Mass, but Meter measures Length"},
        {"unknown symbol", {"convert", "1 m", "Meter", "--symbol", "zz_top"}, 2, "--symbol: unknown symbol"},
        {"precision above 99", {"format", "1", "Meter", "--precision", "100"}, 2, "from 0 to 99"},
        {"negative precision", {"format", "1", "Meter", "--precision=-1"}, 2, "from 0 to 99"},
        {"ambiguous number format", {"format", "1", "Meter", "--number-format", "GENERAL"}, 2,
         "could be \"General\" or \"general\""},
        {"unknown number format", {"format", "1", "Meter", "--number-format", "7"}, 2, "unknown number format \"7\""},
        {"empty separator", {"format", "1", "Meter", "--group-separator="}, 2, "--group-separator must not be empty"},
        {"digit as separator", {"format", "1", "Meter", "--decimal-separator", "0"}, 2, "must not contain digits"},
        {"equal separators", {"format", "1", "Meter", "--group-separator", ";", "--decimal-separator", ";"}, 2,
         "must differ"},
        {"separator equal to the locale's other one", {"format", "1", "Meter", "--decimal-separator", ","}, 2,
         "must differ"},
        {"locale without translations", {"units", "--locale", "hi-IN"}, 2,
         "no translations for locale \"hi-IN\"; shipped locales: "},
        {"locales takes no argument", {"locales", "extra"}, 2, "too many arguments"},
        {"repl with unknown unit", {"repl", "Nope"}, 2, "repl: unknown unit, symbol or group \"Nope\""},
        // A text that cannot be read: the reason, then the text with a caret under the cause.
        {"number without unit", {"parse", "5 ft 6", "Inch"}, 2, "number without a unit; 'kxunits units Length'"},
        {"caret under the cause", {"parse", "5 ft 6", "Inch"}, 2, "\n  5 ft 6\n       ^\n"},
        {"unknown word", {"convert", "2 fx", "Meter"}, 2, "unknown word; 'kxunits units Length'"},
        {"wrong quantity names it", {"parse", "5 kg", "Meter"}, 2, "wrong quantity (Mass)"},
    };
    for (CommandLineCase const& c : cases) {
        SCOPED_TRACE(c.name);
        ToolRun const run = RunTool(c.args);
        EXPECT_EQ(run.exitCode, c.exitCode) << Describe(c.args, run);
        EXPECT_THAT(run.err.toStdString(), HasSubstr(c.stderrPart)) << Describe(c.args, run);
        EXPECT_TRUE(run.out.isEmpty()) << Describe(c.args, run);
    }
}

TEST(KxunitsCommandLine, EveryCommandHasHelpThatWinsOverOtherMistakes) {
    for (char const* command : {"format", "parse", "convert", "units", "locales", "repl"}) {
        for (QStringList const& args : {QStringList{command, "--help"}, QStringList{command, "bad", "-h", "--bogus"},
                                        QStringList{"help", command}, QStringList{"--help"}, QStringList{"-h"}}) {
            ToolRun const run = RunTool(args);
            EXPECT_EQ(run.exitCode, 0) << Describe(args, run);
            // The overview lists every command; a command's help starts with its usage.
            std::string const part = args[0].startsWith('-') ? std::string("\n  ") + command + " "
                                                             : std::string("Usage: kxunits ") + command;
            EXPECT_THAT(run.out.toStdString(), HasSubstr(part)) << Describe(args, run);
        }
    }
    EXPECT_EQ(RunTool({"help"}).out, RunTool({"--help"}).out);
}

// ---------------------------------------------------------------------------
// Listings.

TEST(KxunitsListings, LocalesListsTheShippedOnesAndMarksTheUsersOne) {
    // Rows of some shipped locales, in the listing's order; the user's own is marked
    // when shipped, else en-US.
    QString const rows[] = {"de-DE  0x0407  Deutsch (Deutschland)", "en-GB  0x0809  British English",
                            "en-US  0x0409  American English", QString::fromUtf8("fr-FR  0x040c  français (France)")};
    for (auto [lang, marked] : {std::pair{"C", 2}, {"de_DE.UTF-8", 0}, {"en_GB.UTF-8", 1}, {"fr_FR", 3}, {"hi_IN.UTF-8", 2}}) {
        SCOPED_TRACE(lang);
        ToolRun const run = RunTool({"locales"}, {}, QString::fromLatin1(lang));
        QStringList const lines = Lines(run.out);
        ASSERT_GE(lines.size(), 5) << Describe({"locales"}, run);
        EXPECT_EQ(lines.filter(QRegularExpression(QStringLiteral("^\\* "))).size(), 1) << Describe({"locales"}, run);
        int previous = -1;
        for (int i = 0; i < 4; ++i) {
            QString const want = (i == marked ? "* " : "  ") + rows[i];
            auto const found = std::find_if(lines.begin(), lines.end(), [&](QString const& l) { return l.startsWith(want); });
            ASSERT_NE(found, lines.end()) << want.toStdString() << "\n" << Describe({"locales"}, run);
            int const at = static_cast<int>(found - lines.begin());
            EXPECT_GT(at, previous) << want.toStdString();
            previous = at;
        }
    }
}

TEST(KxunitsListings, GroupsUnitsAndSymbolsWithTranslatedNames) {
    ToolRun const groups = RunTool({"units"});
    ASSERT_EQ(groups.exitCode, 0);
    QStringList const groupLines = Lines(groups.out);
    ASSERT_EQ(groupLines.size(), 73);
    EXPECT_TRUE(groupLines[0].startsWith(QStringLiteral("0x01000"))) << groupLines[0].toStdString();
    EXPECT_THAT(groupLines[0].toStdString(), HasSubstr("(1 unit)"));
    EXPECT_THAT(groupLines[1].toStdString(), HasSubstr("Length"));
    EXPECT_TRUE(groupLines.last().startsWith(QStringLiteral("0x49000"))) << groupLines.last().toStdString();

    struct Row {
        QStringList args;
        char const* lang;
        char const* part;
    };
    Row const rows[] = {
        {{"units", "Length", "--locale", "de-DE"}, "C", "0x02000 Length \"Länge\": 66 units"},
        {{"units", "Length", "--locale", "DE_de"}, "C", "\"Länge\""},
        {{"units", "Length"}, "fr_FR.UTF-8", "\"Longueur\""},
        {{"units", "0x2017", "--locale", "fr-FR"}, "C", "  0x02017     Foot"},
        {{"units", "8215"}, "C", "    0x302017  Foot_Prime"},
        {{"units", "foot_prime"}, "C", "    0x102017  Foot"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.part);
        ToolRun const run = RunTool(row.args, {}, QString::fromLatin1(row.lang));
        EXPECT_EQ(run.exitCode, 0) << Describe(row.args, run);
        EXPECT_THAT(run.out.toStdString(), HasSubstr(row.part)) << Describe(row.args, run);
    }

    // A unit lists only itself; the whole catalogue has a line per group, unit and symbol.
    ToolRun const foot = RunTool({"units", "Foot"});
    EXPECT_EQ(Lines(foot.out).size(), 1 + 1 + 3) << foot.out.toStdString();
    ToolRun const all = RunTool({"units", "--all"});
    EXPECT_EQ(Lines(all.out).size(), 73 + 806 + 1912);
}

// ---------------------------------------------------------------------------
// Format, parse and convert print exactly this; text that does not read is exit 2.

TEST(KxunitsOutput, EachCommandPrintsItsResult) {
    struct Row {
        QStringList args;
        char const* lang;
        char const* expected;
    } const rows[] = {
        {{"format", "1234.5", "Meter", "--symbol", "m"}, "C", "1,234.50 m\n"},
        {{"format", "1234.5", "Meter", "--symbol", "m", "--locale", "de-DE"}, "C", "1.234,50 m\n"},
        {{"format", "-0.25", "Meter", "--symbol", "m", "--precision", "3"}, "fr_FR.UTF-8", "-0,250 m\n"},
        {{"format", "66.5", "Inch", "--symbol", "Inch_FootPrimeInchDoublePrime_Fraction", "--precision", "3"}, "C",
         "5'6 1/2\"\n"},
        {{"format", "-6", "Inch", "--symbol", "Inch_FootPrimeDashInchDoublePrime", "--precision", "0"}, "C", "-0'-6\"\n"},
        {{"format", "20", "DegreeCelsius", "--symbol", "degreeC", "--precision", "1", "--locale", "de-DE"}, "C",
         "20,0°C\n"},
        {{"parse", "5' 6 1/2\"", "Inch"}, "C", "66.5 Inch\n1.6891 m\n"},
        {{"parse", "1,234.50 m", "Meter"}, "C", "1234.5 Meter\n1234.5 m\n"},
        {{"parse", "-0,250 m", "Meter", "--locale", "fr-FR"}, "C", "-0.25 Meter\n-0.25 m\n"},
        {{"parse", "10 kg/m³", "KilogramPerCubicMeter"}, "C", "10 KilogramPerCubicMeter\n10 kg/m^3\n"},
        {{"parse", "180°", "Degree"}, "C", "180 Degree\n3.14159265358979 rad\n"},
        {{"parse", "5 ft 6 in", "Inch"}, "C", "66 Inch\n1.6764 m\n"},
        {{"convert", "1.5 m + 20 cm", "Meter", "--symbol", "m"}, "C", "1.70 m\n"},
        {{"convert", "5' 6\"", "Meter", "--symbol", "m", "--locale", "fr-FR"}, "C", "1,68 m\n"},
        {{"convert", "1234.5 m", "Meter", "--precision", "1"}, "C", "1,234.5 meter\n"},
        {{"convert", "68 °F", "DegreeCelsius", "--symbol", "degreeC", "--precision", "1"}, "C", "20.0°C\n"},
        {{"convert", "1,68 m", "Inch_FootPrimeInchDoublePrime_Fraction", "--precision", "4", "--locale", "de-DE"}, "C",
         "5'6 1/8\"\n"},
        {{"convert", "12345 ft", "Foot", "--symbol", "ft", "--group-separator", "'", "--decimal-separator", ","}, "C",
         "12'345,00 ft\n"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.expected);
        ToolRun const run = RunTool(row.args, {}, QString::fromLatin1(row.lang));
        EXPECT_EQ(run.exitCode, 0) << Describe(row.args, run);
        EXPECT_EQ(run.out, QString::fromUtf8(row.expected)) << Describe(row.args, run);
    }
    for (QStringList const& args : {QStringList{"parse", "", "Foot"}, QStringList{"parse", "5 fx", "Foot"},
                                    QStringList{"parse", "\xef\xbf\xbd", "Foot"}, QStringList{"parse", "5 kg", "Foot"},
                                    QStringList{"convert", "5 fx", "Foot"}}) {
        ToolRun const run = RunTool(args);
        EXPECT_EQ(run.exitCode, 2) << Describe(args, run);
        EXPECT_THAT(run.err.toStdString(), HasSubstr("\" as Length")) << Describe(args, run);
    }
    // A group separator inside a group reads by the number rules, with a warning.
    QStringList const grouped{"parse", "1,5 m", "Meter"};
    ToolRun const run = RunTool(grouped);
    EXPECT_EQ(run.exitCode, 0) << Describe(grouped, run);
    EXPECT_EQ(run.out, QStringLiteral("15 Meter\n15 m\n")) << Describe(grouped, run);
    EXPECT_THAT(run.err.toStdString(), HasSubstr("warning: \"1,5 m\": group separator inside a group\n  1,5 m\n   ^"))
        << Describe(grouped, run);
}

// ---------------------------------------------------------------------------
// The repl answers line by line through a pipe; bad lines do not stop it.

TEST(KxunitsRepl, EveryLineGetsOneAnswer) {
    QByteArray junk("\xff\xfe\x00\x80 m\n", 7);
    junk += QByteArray(100000, '9') + " m\n";
    struct Row {
        QStringList args;
        QByteArray input;
        int exitCode;
        QStringList starts;  // the start of each line of output
    } const rows[] = {
        {{"repl", "Length"},
         "5 fx\n\n   \n:unit Nope\n:bogus\n:unit Angle\nnot an angle\r\n:locale xx-YY\n:locale fr_FR\n:help\n",
         2,
         {"error: cannot read \"5 fx\" as Length: unknown word at \"fx\"", "error: unknown unit, symbol or group \"Nope\"",
          "error: unknown command \":bogus\"", "unit: Radian (0x08001), group Angle",
          "error: cannot read \"not an angle\" as Angle: unknown word at \"not an angle\"", "error: no translations for locale \"xx-YY\"",
          "locale: fr-FR", ":unit UNIT"}},
        {{"repl", "Length", "--locale", "en-US"},
         "5' 6 1/2\"\n2.5 m\n",
         0,
         {"1.6891 m = 5'6 1/2\" = 5.5417 ft", "2.5000 m = 8'2 7/16\" = 8.2021 ft"}},
        {{"repl"}, ":quit\n5 fx\n", 0, {}},
        {{"repl", "Foot"}, {}, 0, {}},
        {{"repl"}, junk, 2, {"", ""}},  // no UTF-8, a NUL, a long line
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.input.left(40).toStdString());
        ToolRun const run = RunTool(row.args, row.input);
        EXPECT_EQ(run.exitCode, row.exitCode) << run.err.toStdString();
        QStringList const lines = Lines(run.out);
        ASSERT_EQ(lines.size(), row.starts.size()) << run.out.left(300).toStdString();
        for (int i = 0; i < lines.size(); ++i) EXPECT_TRUE(lines[i].startsWith(row.starts[i])) << lines[i].left(80).toStdString();
        EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    }
}

}  // namespace
