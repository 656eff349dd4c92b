// kxunits as a user runs it: exit codes, error messages, listings, the repl through
// a pipe, and format/parse/convert round trips in several locales.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStringList>
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
        {"locale without translations", {"units", "--locale", "ja-JP"}, 2,
         "no translations for locale \"ja-JP\"; shipped locales: de-DE, en-US, fr-FR"},
        {"locales takes no argument", {"locales", "extra"}, 2, "too many arguments"},
        {"repl with unknown unit", {"repl", "Nope"}, 2, "repl: unknown unit, symbol or group \"Nope\""},
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
        SCOPED_TRACE(command);
        for (QStringList const& args : {QStringList{command, "--help"}, QStringList{command, "bad", "-h", "--bogus"},
                                        QStringList{"help", command}}) {
            ToolRun const run = RunTool(args);
            EXPECT_EQ(run.exitCode, 0) << Describe(args, run);
            EXPECT_TRUE(run.out.startsWith(QStringLiteral("Usage: kxunits ") + command)) << Describe(args, run);
            EXPECT_THAT(run.out.toStdString(), HasSubstr("--help")) << Describe(args, run);
        }
    }
    for (QStringList const& args : {QStringList{"--help"}, QStringList{"help"}, QStringList{"-h"}}) {
        ToolRun const run = RunTool(args);
        EXPECT_EQ(run.exitCode, 0);
        for (char const* command : {"format", "parse", "convert", "units", "locales", "repl"}) {
            EXPECT_THAT(run.out.toStdString(), HasSubstr(std::string("  ") + command + " ")) << Describe(args, run);
        }
    }
}

// ---------------------------------------------------------------------------
// Listings.

TEST(KxunitsListings, LocalesListsTheShippedOnesAndMarksTheUsersOne) {
    struct Row {
        char const* lang;
        char const* marked;
    };
    for (Row const row : {Row{"C", "en-US"}, Row{"de_DE.UTF-8", "de-DE"}, Row{"fr_FR", "fr-FR"}, Row{"ja_JP.UTF-8", "en-US"}}) {
        SCOPED_TRACE(row.lang);
        ToolRun const run = RunTool({"locales"}, {}, QString::fromLatin1(row.lang));
        ASSERT_EQ(run.exitCode, 0) << Describe({"locales"}, run);
        QStringList const lines = Lines(run.out);
        ASSERT_EQ(lines.size(), 4) << Describe({"locales"}, run);
        EXPECT_TRUE(lines[0].startsWith(QStringLiteral("  de-DE  0x0407  Deutsch (Deutschland)")) ||
                    lines[0].startsWith(QStringLiteral("* de-DE  0x0407  Deutsch (Deutschland)")));
        EXPECT_THAT(lines[1].toStdString(), HasSubstr("en-US  0x0409"));
        EXPECT_THAT(lines[2].toStdString(), HasSubstr("fr-FR  0x040c  français (France)"));
        int marks = 0;
        for (int i = 0; i < 3; ++i) {
            if (lines[i].startsWith(QLatin1Char('*'))) {
                ++marks;
                EXPECT_TRUE(lines[i].startsWith(QStringLiteral("* ") + row.marked)) << lines[i].toStdString();
            }
        }
        EXPECT_EQ(marks, 1);
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
// Reading text: what does not read is exit 2, and nothing crashes on odd input.

TEST(KxunitsParse, UnreadableTextExitsWithTwo) {
    for (char const* text : {"", " ", "5 fx", "m 5 +", "(2 ft", "2 ft)", "\xef\xbf\xbd", "5 kg"}) {
        SCOPED_TRACE(text);
        QStringList const args{"parse", QString::fromUtf8(text), "Foot"};
        ToolRun const run = RunTool(args);
        EXPECT_EQ(run.exitCode, 2) << Describe(args, run);
        EXPECT_THAT(run.err.toStdString(), HasSubstr("cannot read")) << Describe(args, run);
        EXPECT_THAT(run.err.toStdString(), HasSubstr("as Length")) << Describe(args, run);
    }
    QStringList const convert{"convert", "5 fx", "Meter"};
    EXPECT_EQ(RunTool(convert).exitCode, 2);
}

// ---------------------------------------------------------------------------
// The repl answers line by line through a pipe.

TEST(KxunitsRepl, EveryLineGetsOneAnswerAndBadLinesDoNotStopIt) {
    QByteArray const input =
        "5 fx\n"
        "\n"
        "   \n"
        ":unit Nope\n"
        ":bogus\n"
        ":unit Angle\n"
        "not an angle\r\n"
        ":locale xx-YY\n"
        ":locale fr_FR\n"
        ":help\n";
    ToolRun const run = RunTool({"repl", "Length"}, input);
    EXPECT_EQ(run.exitCode, 2) << run.out.toStdString();  // some lines did not read
    QStringList const lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 8) << run.out.toStdString();
    EXPECT_EQ(lines[0], QStringLiteral("error: cannot read \"5 fx\" as Length"));
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("error: unknown unit, symbol or group \"Nope\"")));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("error: unknown command \":bogus\"")));
    EXPECT_EQ(lines[3], QStringLiteral("unit: Radian (0x08001), group Angle"));
    EXPECT_EQ(lines[4], QStringLiteral("error: cannot read \"not an angle\" as Angle"));
    EXPECT_TRUE(lines[5].startsWith(QStringLiteral("error: no translations for locale \"xx-YY\"")));
    EXPECT_EQ(lines[6], QStringLiteral("locale: fr-FR"));
    EXPECT_TRUE(lines[7].startsWith(QStringLiteral(":unit UNIT")));
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
}

TEST(KxunitsRepl, QuitStopsReadingAndEmptyInputIsFine) {
    ToolRun const quit = RunTool({"repl"}, ":quit\n5 fx\n");
    EXPECT_EQ(quit.exitCode, 0);
    EXPECT_TRUE(quit.out.isEmpty()) << quit.out.toStdString();
    ToolRun const empty = RunTool({"repl", "Foot"}, {});
    EXPECT_EQ(empty.exitCode, 0);
    EXPECT_TRUE(empty.out.isEmpty());
    // Bytes that are no UTF-8, a NUL and a very long line are answered, not fatal.
    QByteArray junk("\xff\xfe\x00\x80 m\n", 7);
    junk += QByteArray(100000, '9') + " m\n";
    ToolRun const odd = RunTool({"repl"}, junk);
    EXPECT_NE(odd.exitCode, -1000) << odd.err.toStdString();
    EXPECT_EQ(Lines(odd.out).size(), 2) << odd.out.left(300).toStdString();
}

// ---------------------------------------------------------------------------
// Round trips through the library.

double FirstNumber(QString const& line) { return line.section(QLatin1Char(' '), 0, 0).toDouble(); }

struct RoundTrip {
    char const* locale;
    double value;
    char const* unit;
    char const* symbol;
    int precision;
    char const* text;  // what format writes
};

TEST(KxunitsRoundTrip, FormatWritesWhatParseReadsBack) {
    RoundTrip const rows[] = {
        {"en-US", 1.5, "Meter", "m", 2, "1.50 m"},
        {"en-US", 1234.5, "Meter", "m", 2, "1,234.50 m"},
        {"de-DE", 1234.5, "Meter", "m", 2, "1.234,50 m"},
        {"fr-FR", -0.25, "Meter", "m", 3, "-0,250 m"},
        {"en-US", 66.5, "Inch", "Inch_FootPrimeInchDoublePrime_Fraction", 3, "5'6 1/2\""},
        {"en-US", -6, "Inch", "Inch_FootPrimeDashInchDoublePrime", 0, "-0'-6\""},
        {"de-DE", 20, "DegreeCelsius", "degreeC", 1, "20,0°C"},
    };
    for (RoundTrip const& row : rows) {
        SCOPED_TRACE(row.text);
        QStringList const format{"format", QString::number(row.value, 'g', 17), row.unit, "--symbol", row.symbol,
                                 "--precision", QString::number(row.precision), "--locale", row.locale};
        ToolRun const written = RunTool(format);
        ASSERT_EQ(written.exitCode, 0) << Describe(format, written);
        EXPECT_EQ(written.out.trimmed(), QString::fromUtf8(row.text)) << Describe(format, written);

        QStringList const parse{"parse", written.out.trimmed(), row.unit, "--locale", row.locale};
        ToolRun const readBack = RunTool(parse);
        ASSERT_EQ(readBack.exitCode, 0) << Describe(parse, readBack);
        QStringList const lines = Lines(readBack.out);
        ASSERT_EQ(lines.size(), 2) << Describe(parse, readBack);
        EXPECT_NEAR(FirstNumber(lines[0]), row.value, 1e-9) << Describe(parse, readBack);
        EXPECT_TRUE(lines[0].endsWith(QLatin1Char(' ') + QLatin1String(row.unit))) << Describe(parse, readBack);
    }
}

TEST(KxunitsRoundTrip, ParsePrintsTheValueInSiBaseUnits) {
    struct Row {
        char const* text;
        char const* unit;
        double value;
        double si;
        char const* siUnit;
    };
    Row const rows[] = {
        {"5' 6 1/2\"", "Inch", 66.5, 1.6891, "m"},
        {"10 kg/m³", "KilogramPerCubicMeter", 10, 10, "kg/m^3"},
        {"9.81 m/s^2", "MeterPerSecondSquared", 9.81, 9.81, "m/s^2"},
        {"68 °F", "DegreeCelsius", 20, 293.15, "K"},
        {"180°", "Degree", 180, M_PI, "rad"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.text);
        QStringList const args{"parse", QString::fromUtf8(row.text), row.unit};
        ToolRun const run = RunTool(args);
        ASSERT_EQ(run.exitCode, 0) << Describe(args, run);
        QStringList const lines = Lines(run.out);
        ASSERT_EQ(lines.size(), 2) << Describe(args, run);
        EXPECT_NEAR(FirstNumber(lines[0]), row.value, 1e-9 * std::max(1.0, row.value));
        EXPECT_NEAR(FirstNumber(lines[1]), row.si, 1e-9 * std::max(1.0, row.si));
        EXPECT_TRUE(lines[1].endsWith(QLatin1Char(' ') + QString::fromUtf8(row.siUnit))) << lines[1].toStdString();
    }
}

TEST(KxunitsRoundTrip, ConvertReadsOneUnitAndWritesAnother) {
    struct Row {
        QStringList args;
        char const* expected;
    };
    Row const rows[] = {
        {{"convert", "5' 6\"", "Meter", "--symbol", "m"}, "1.68 m"},
        {{"convert", "5' 6\"", "Meter", "--symbol", "m", "--locale", "fr-FR"}, "1,68 m"},
        {{"convert", "1234.5 m", "Meter", "--locale", "en-US", "--precision", "1"}, "1,234.5 meter"},
        {{"convert", "68 °F", "DegreeCelsius", "--symbol", "degreeC", "--precision", "1"}, "20.0°C"},
        {{"convert", "1,68 m", "Inch_FootPrimeInchDoublePrime_Fraction", "--precision", "4", "--locale", "de-DE"},
         "5'6 1/8\""},
        {{"convert", "2,5 m", "Foot", "--symbol", "ft", "--group-separator", "'", "--decimal-separator", ","},
         "8,20 ft"},
        {{"convert", "12345 ft", "Foot", "--symbol", "ft", "--group-separator", "'", "--decimal-separator", ","},
         "12'345,00 ft"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.expected);
        ToolRun const run = RunTool(row.args);
        ASSERT_EQ(run.exitCode, 0) << Describe(row.args, run);
        EXPECT_EQ(run.out.trimmed(), QString::fromUtf8(row.expected)) << Describe(row.args, run);
    }
}

TEST(KxunitsRoundTrip, ReplAnswersALengthInThreeStyles) {
    ToolRun const run = RunTool({"repl", "Length", "--locale", "en-US"}, "5' 6 1/2\"\n2.5 m\n");
    ASSERT_EQ(run.exitCode, 0) << run.out.toStdString() << run.err.toStdString();
    QStringList const lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 2) << run.out.toStdString();
    EXPECT_EQ(lines[0], QStringLiteral("1.6891 m = 5'6 1/2\" = 5.5417 ft"));
    EXPECT_EQ(lines[1], QStringLiteral("2.5000 m = 8'2 7/16\" = 8.2021 ft"));
}

}  // namespace
