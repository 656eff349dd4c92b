// Text helpers of the command-line tool: conversions between Qt strings and the
// library's wide strings, UTF-8 output, and the tool's exit codes.
#pragma once

#include <QString>
#include <cstdio>
#include <string>

namespace kxunits {

// Exit status of every command.
enum ExitCode : int {
    kExitOk = 0,
    kExitFailed = 1,    // the library could not do what was asked (no translations, formatting failed)
    kExitBadInput = 2,  // the command line, a name or a text to parse was not understood
};

inline std::wstring ToWide(QString const& text) { return text.toStdWString(); }
inline QString FromWide(wchar_t const* text) { return text == nullptr ? QString() : QString::fromWCharArray(text); }

// Writes `text` as UTF-8, whatever the C locale says.
inline void Write(std::FILE* stream, QString const& text) {
    QByteArray const utf8 = text.toUtf8();
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
}
inline void WriteLine(std::FILE* stream, QString const& text) {
    Write(stream, text);
    std::fputc('\n', stream);
}
inline void Out(QString const& text) { WriteLine(stdout, text); }
// "kxunits: " and the message on standard error.
inline void Error(QString const& text) { WriteLine(stderr, QStringLiteral("kxunits: ") + text); }

// A double in C notation with up to 15 significant digits: 1.6891, 5.54166666666667, 1e-09.
QString NumberText(double value);

// `text` in double quotes, for error messages.
inline QString Quoted(QString const& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

}  // namespace kxunits
