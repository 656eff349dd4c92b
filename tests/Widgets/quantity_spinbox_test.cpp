// The spin box driven as a person drives it: keys, the wheel and focus changes.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWidget>
#include <cmath>
#include <memory>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsWidgets/QuantitySpinBox.h"
#include "ManagerTest.h"
#include "Widgets/WidgetTestSupport.h"

namespace {

namespace units = kxnorth::platform::core::units;

constexpr int kMetre = 0x2001;
constexpr int kFoot = 0x2017;
constexpr int kInch = 0x2016;
constexpr int kDegree = 0x8002;
constexpr int kMetreSymbol = 0x202001;        // m
constexpr int kFootSymbol = 0x202017;         // ft
constexpr int kFeetInchesDash = 0x602016;     // 5'-6.50"
constexpr int kFeetInchFractions = 0x802016;  // 5'-6-1/2"
constexpr int kInchFractions = 0x902016;      // 66 1/2"
constexpr int kDegreesMinutesSeconds = 0x408002;
constexpr double kInchInMetres = 0.0254;

enum class Commit { Enter, Tab };

// A window with the spin box and a second field to move the focus to.
class QuantitySpinBoxTest : public kxtest::ManagerTest<> {
protected:
    void SetUp() override {
        window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(window.get());
        spin = new units::QuantitySpinBox(window.get());
        other = new QLineEdit(window.get());
        layout->addWidget(spin);
        layout->addWidget(other);
        spin->setLocaleName(QStringLiteral("en-US"));
        spin->setDisplaySymbol(kMetreSymbol);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        spin->setFocus();
    }

    // Replaces the text as a person does: select all, type, then Enter or Tab away.
    void Type(QString const& text, Commit commit = Commit::Enter) {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClick(spin, Qt::Key_Delete);
        QTest::keyClicks(spin, text);
        if (commit == Commit::Enter) {
            QTest::keyClick(spin, Qt::Key_Return);
        } else {
            QTest::keyClick(spin, Qt::Key_Tab);
            EXPECT_TRUE(other->hasFocus());
        }
    }

    void Wheel(int notches) {
        QPointF const centre = QPointF(spin->rect().center());
        QWheelEvent event(centre, spin->mapToGlobal(centre), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(spin, &event);
    }

    QString Text() const { return spin->text(); }
    QLineEdit* Editor() const { return spin->findChild<QLineEdit*>(); }

    std::unique_ptr<QWidget> window;
    units::QuantitySpinBox* spin = nullptr;
    QLineEdit* other = nullptr;
};

struct TypedRow {
    char const* name;
    int symbol;
    int precision;
    char const* typed;
    double metres;
    char const* shown;
};

TEST_F(QuantitySpinBoxTest, TypedTextSetsTheValueAndIsRewrittenInTheDisplaySymbol) {
    TypedRow const rows[] = {
        {"metres typed in metres", kMetreSymbol, 2, "1.7 m", 1.7, "1.70 m"},
        {"feet and inches into metres", kMetreSymbol, 4, "5'-6 1/2\"", 1.6891, "1.6891 m"},
        {"inches into feet and fractions", kFeetInchFractions, 4, "66.5 in", 1.6891, "5'-6-1/2\""},
        {"metres into fractional inches", kInchFractions, 4, "1 m", 1.0, "39 3/8\""},
        {"a fraction of a metre", kMetreSymbol, 3, "1/8 m", 0.125, "0.125 m"},
        {"a mixed number of feet", kFootSymbol, 2, "1 1/2 ft", 0.4572, "1.50 ft"},
        {"a negative value", kFeetInchesDash, 2, "-6\"", -6 * kInchInMetres, "-0'-6.00\""},
    };
    for (Commit const commit : {Commit::Enter, Commit::Tab}) {
        for (TypedRow const& row : rows) {
            SCOPED_TRACE(testing::Message() << row.name << (commit == Commit::Enter ? " (Enter)" : " (Tab)"));
            spin->setValue(123.0);
            spin->setDisplaySymbol(row.symbol);
            ASSERT_EQ(spin->formatter().SetNumberDecimalPrecision(row.precision), 0);
            spin->refresh();
            QSignalSpy changed(spin, &units::QuantitySpinBox::valueChanged);
            Type(QString::fromUtf8(row.typed), commit);
            EXPECT_NEAR(spin->value(), row.metres, 1e-12);
            EXPECT_EQ(Text(), QString::fromUtf8(row.shown));
            EXPECT_EQ(changed.count(), 1);
            EXPECT_TRUE(spin->errorText().isEmpty());
        }
    }
}

TEST_F(QuantitySpinBoxTest, TextThatDoesNotReadKeepsTheValueAndSaysWhy) {
    QColor const normalBase = Editor()->palette().color(QPalette::Base);
    // Each text with where and why it stopped, as the field's tool tip ends.
    struct {
        char const* typed;
        char const* reason;
    } const rows[] = {
        {"5 fx", "unknown word at \"fx\""},    {"(1.7", "unmatched parenthesis at \"(1.7\""},
        {"1.7 m)", "unmatched parenthesis at \")\""}, {"2 kg", "wrong quantity at \"2 kg\""},
        {"", "no value: type a length"},        {"1 1/", "cannot read this as a quantity at \"1 1/\""},
    };
    for (auto const& row : rows) {
        char const* typed = row.typed;
        SCOPED_TRACE(typed);
        spin->setValue(2.5);
        QSignalSpy changed(spin, &units::QuantitySpinBox::valueChanged);
        Type(QString::fromUtf8(typed));
        EXPECT_EQ(spin->value(), 2.5);
        EXPECT_EQ(changed.count(), 0);
        EXPECT_EQ(Text(), QString::fromUtf8(typed)) << "the person's text stays to be corrected";
        EXPECT_FALSE(spin->errorText().isEmpty());
        EXPECT_EQ(spin->toolTip(), spin->errorText());
        EXPECT_TRUE(spin->errorText().endsWith(QString::fromUtf8(row.reason))) << spin->errorText().toStdString();
        EXPECT_NE(Editor()->palette().color(QPalette::Base), normalBase);
        // Leaving the field again changes nothing either.
        QTest::keyClick(spin, Qt::Key_Tab);
        EXPECT_EQ(spin->value(), 2.5);
        EXPECT_EQ(changed.count(), 0);
    }
    // Correcting the text clears the error state.
    Type(QStringLiteral("3 m"));
    EXPECT_EQ(spin->value(), 3.0);
    EXPECT_TRUE(spin->errorText().isEmpty());
    EXPECT_EQ(spin->toolTip(), QStringLiteral("3 m"));
    EXPECT_EQ(Editor()->palette().color(QPalette::Base), normalBase);
}

TEST_F(QuantitySpinBoxTest, TextNoContinuationCanFixIsMarkedWhileTypingButNotRefused) {
    spin->setValue(1.0);
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("5 f"));
    EXPECT_TRUE(spin->errorText().isEmpty()) << "\"5 f\" may become \"5 ft\"";
    QTest::keyClicks(spin, QStringLiteral("x"));
    EXPECT_EQ(Text(), QStringLiteral("5 fx")) << "no key is swallowed";
    EXPECT_FALSE(spin->errorText().isEmpty());
    QTest::keyClick(spin, Qt::Key_Backspace);
    EXPECT_TRUE(spin->errorText().isEmpty());
    EXPECT_EQ(spin->value(), 1.0) << "typing alone sets nothing";
}

TEST_F(QuantitySpinBoxTest, LeavingAnUneditedFieldKeepsTheUnroundedValue) {
    spin->setValue(1.6891);
    ASSERT_EQ(Text(), QStringLiteral("1.69 m"));
    QSignalSpy changed(spin, &units::QuantitySpinBox::valueChanged);
    spin->setFocus();
    QTest::keyClick(spin, Qt::Key_Return);
    QTest::keyClick(spin, Qt::Key_Tab);
    EXPECT_EQ(spin->value(), 1.6891);
    EXPECT_EQ(changed.count(), 0);
}

struct StepRow {
    char const* name;
    int unit;
    int symbol;
    int precision;
    double step;   // in the display symbol's unit; 0: the last place shown
    double start;  // in `unit`
    int key;       // Qt::Key_Up, Key_Down, Key_PageUp; 0: one wheel notch up
    char const* shown;
};

TEST_F(QuantitySpinBoxTest, StepsMoveTheShownValueByOneLastPlaceInTheDisplaySymbol) {
    StepRow const rows[] = {
        {"metres up from a rounded value", kMetre, kMetreSymbol, 2, 0, 1.6891, Qt::Key_Up, "1.70 m"},
        {"metres down", kMetre, kMetreSymbol, 2, 0, 1.6891, Qt::Key_Down, "1.68 m"},
        {"metres by the wheel", kMetre, kMetreSymbol, 2, 0, 1.6891, 0, "1.70 m"},
        {"page up is ten steps", kMetre, kMetreSymbol, 2, 0, 1.0, Qt::Key_PageUp, "1.10 m"},
        {"sixteenths of an inch", kMetre, kInchFractions, 4, 0, 66.5 * kInchInMetres, Qt::Key_Up, "66 9/16\""},
        {"sixteenths carry into a foot", kInch, kFeetInchFractions, 4, 0, 11.9375, Qt::Key_Up, "1'-0\""},
        {"half inches, explicitly; the next rows step by default again", kInch, kFeetInchFractions, 4, 0.5, 0.0, 0, "0'-1/2\""},
        {"eighths by the wheel", kInch, kFeetInchFractions, 3, 0, 12.0, 0, "1'-1/8\""},
        {"down through zero", kInch, kInchFractions, 4, 0, 0.0, Qt::Key_Down, "-1/16\""},
        {"decimal inches", kFoot, kFeetInchesDash, 2, 0, 5.5, Qt::Key_Up, "5'-6.01\""},
        {"explicit steps stay in feet", kFoot, kFootSymbol, 2, 0.25, 1.0, Qt::Key_Down, "0.75 ft"},
        {"feet stay feet", kFoot, kFootSymbol, 1, 0, 9.96, Qt::Key_Up, "10.1 ft"},
        {"seconds of arc", kDegree, kDegreesMinutesSeconds, 4, 0, 45.0, Qt::Key_Up, "45°0'1\""},
        {"minutes of arc", kDegree, kDegreesMinutesSeconds, 2, 0, 45.0, Qt::Key_Down, "44°59'"},
    };
    for (StepRow const& row : rows) {
        SCOPED_TRACE(row.name);
        spin->setUnit(row.unit);
        spin->setDisplaySymbol(row.symbol);
        ASSERT_EQ(spin->displaySymbol(), row.symbol);
        ASSERT_EQ(spin->formatter().SetNumberDecimalPrecision(row.precision), 0);
        spin->setSingleStep(row.step);
        spin->setValue(row.start);
        spin->refresh();
        spin->setFocus();
        if (row.key == 0) {
            Wheel(1);
        } else {
            QTest::keyClick(spin, static_cast<Qt::Key>(row.key));
        }
        EXPECT_EQ(Text(), QString::fromUtf8(row.shown));
        EXPECT_EQ(spin->displaySymbol(), row.symbol) << "stepping never switches unit";
    }
}

TEST_F(QuantitySpinBoxTest, RangeClampsTypedTextStepsAndSetValue) {
    spin->setRange(0.0, 2.0);
    QSignalSpy changed(spin, &units::QuantitySpinBox::valueChanged);
    struct {
        char const* typed;
        double metres;
    } const rows[] = {{"3 m", 2.0}, {"-1 ft", 0.0}, {"1 yd", 0.9144}, {"1e300", 2.0}};
    for (auto const& row : rows) {
        SCOPED_TRACE(row.typed);
        Type(QString::fromUtf8(row.typed));
        EXPECT_DOUBLE_EQ(spin->value(), row.metres);
        EXPECT_TRUE(spin->errorText().isEmpty());
    }
    EXPECT_EQ(Text(), QStringLiteral("2.00 m"));
    QTest::keyClick(spin, Qt::Key_Up);
    EXPECT_EQ(spin->value(), 2.0) << "no step beyond the maximum";
    spin->setValue(-5.0);
    EXPECT_EQ(spin->value(), 0.0);
    QTest::keyClick(spin, Qt::Key_Down);
    EXPECT_EQ(spin->value(), 0.0);
    spin->setWrapping(true);
    QTest::keyClick(spin, Qt::Key_Down);
    EXPECT_EQ(spin->value(), 2.0) << "wrapping steps from the minimum to the maximum";
    QTest::keyClick(spin, Qt::Key_Up);
    EXPECT_EQ(spin->value(), 0.0);
    spin->setWrapping(false);
    spin->setMaximum(-1.0);
    EXPECT_EQ(spin->minimum(), -1.0) << "a maximum below the minimum moves the minimum";
    EXPECT_EQ(spin->value(), -1.0);
    spin->setValue(std::nan(""));
    EXPECT_EQ(spin->value(), -1.0);
}

TEST_F(QuantitySpinBoxTest, ALocaleChangeRewritesTheTextAndReadsTheLocalesNumbers) {
    spin->setValue(1234.5);
    struct {
        char const* locale;
        char const* shown;
        char const* typed;
    } const rows[] = {
        {"de-DE", "1.234,50 m", "2,5 m"},
        {"fr-FR", "1\u202F234,50 m", "2,5 m"},
        {"en-US", "1,234.50 m", "2.5 m"},
    };
    QSignalSpy localeChanged(spin, &units::QuantitySpinBox::localeNameChanged);
    for (auto const& row : rows) {
        SCOPED_TRACE(row.locale);
        spin->setValue(1234.5);
        spin->setLocaleName(QString::fromUtf8(row.locale));
        EXPECT_EQ(spin->localeName(), QString::fromUtf8(row.locale));
        EXPECT_EQ(Text(), QString::fromUtf8(row.shown));
        Type(QString::fromUtf8(row.typed));
        EXPECT_EQ(spin->value(), 2.5);
    }
    EXPECT_EQ(localeChanged.count(), 3);
}

TEST_F(QuantitySpinBoxTest, UnitsAndSymbolsOfTheSameQuantityConvertOthersAreRefused) {
    spin->setValue(1.0);
    spin->setRange(0.0, 3.0);
    QSignalSpy valueChanged(spin, &units::QuantitySpinBox::valueChanged);
    QSignalSpy rangeChanged(spin, &units::QuantitySpinBox::rangeChanged);
    spin->setUnit(kFoot);
    EXPECT_NEAR(spin->value(), 1.0 / 0.3048, 1e-12);
    EXPECT_NEAR(spin->maximum(), 3.0 / 0.3048, 1e-12);
    EXPECT_EQ(valueChanged.count(), 1);
    EXPECT_EQ(rangeChanged.count(), 1);
    EXPECT_EQ(Text(), QStringLiteral("1.00 m")) << "the same length, shown as before";
    EXPECT_EQ(spin->toolTip(), QStringLiteral("1 m"));

    spin->setDisplaySymbol(kDegreesMinutesSeconds);
    EXPECT_EQ(spin->displaySymbol(), kMetreSymbol) << "an angle symbol cannot show a length";

    spin->setUnit(kDegree);
    EXPECT_EQ(spin->maximum(), std::numeric_limits<double>::max()) << "a new quantity has no range";
    EXPECT_EQ(spin->displaySymbol(), 0);
    constexpr int kUnitless = 0x1001;  // dimensionless like the angle, but another quantity
    spin->setDisplaySymbol(kUnitless | 0x100000);
    EXPECT_EQ(spin->displaySymbol(), 0);
    Type(QStringLiteral("45°30'"));
    EXPECT_DOUBLE_EQ(spin->value(), 45.5);
    EXPECT_EQ(spin->toolTip(), QStringLiteral("0.7941248097 rad"));
}

TEST_F(QuantitySpinBoxTest, WithoutADisplaySymbolTheGroupsDefaultIsShownAndStepped) {
    spin->setDisplaySymbol(0);
    spin->setUnit(kFoot);
    spin->setValue(1.0 / 0.3048);
    EXPECT_EQ(Text(), QStringLiteral("1.00 meter")) << "the group's default unit, not the value's unit";
    ASSERT_EQ(spin->formatter().SetDefaultUnit(kFoot), 0);
    spin->refresh();
    EXPECT_EQ(Text(), QStringLiteral("3.28 foot"));
    QTest::keyClick(spin, Qt::Key_Up);
    EXPECT_EQ(Text(), QStringLiteral("3.29 foot"));
    EXPECT_DOUBLE_EQ(spin->value(), 3.29);
}

TEST_F(QuantitySpinBoxTest, BareNumbersAreReadInTheFormattersDefaultNotTheDisplaySymbol) {
    spin->setDisplaySymbol(kFeetInchFractions);
    Type(QStringLiteral("5"));
    EXPECT_EQ(spin->value(), 5.0) << "metres, the group's default";
    spin->setDisplaySymbol(0);
    ASSERT_EQ(spin->formatter().SetDefaultUnit(kFoot), 0);
    ASSERT_EQ(spin->formatter().SetDefaultSymbol(kFootSymbol), 0);
    spin->refresh();
    Type(QStringLiteral("5"));
    EXPECT_DOUBLE_EQ(spin->value(), 5 * 0.3048);
    EXPECT_EQ(Text(), QStringLiteral("5.00 ft"));
}

TEST_F(QuantitySpinBoxTest, RefreshShowsTheHostsNumberSettings) {
    spin->setValue(1234.56);
    spin->formatter().SetNumberDecimalPrecision(1);
    spin->formatter().SetNumberGroupSeparator(L"'");
    EXPECT_EQ(Text(), QStringLiteral("1,234.56 m")) << "unchanged until refreshed";
    spin->refresh();
    EXPECT_EQ(Text(), QStringLiteral("1'234.6 m"));
    EXPECT_EQ(spin->singleStep(), 0.1) << "one last place at the new precision";
}

}  // namespace
