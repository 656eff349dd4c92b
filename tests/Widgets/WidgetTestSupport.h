// Readable QString values in failure messages.
#pragma once

#include <QString>
#include <ostream>

inline void PrintTo(QString const& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
