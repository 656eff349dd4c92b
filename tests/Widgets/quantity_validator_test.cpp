// What the validator says of partial input, and what fixup writes.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <memory>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsWidgets/QuantityValidator.h"
#include "ManagerTest.h"
#include "Widgets/WidgetTestSupport.h"

namespace {

namespace units = kxnorth::platform::core::units;

constexpr int kFoot = 0x2017;
constexpr int kMetrePerSecond = 0x28001;
constexpr int kDegree = 0x8002;
constexpr int kFeetInchesDash = 0x602016;

class QuantityValidatorTest : public kxtest::ManagerTest<> {
protected:
    void SetUp() override { formatter = std::make_unique<units::UnitsFormatter>(L"en-US"); }

    QValidator::State State(QString text, int unit) const {
        units::QuantityValidator const validator(formatter.get(), unit);
        int pos = static_cast<int>(text.size());
        return validator.validate(text, pos);
    }

    std::unique_ptr<units::UnitsFormatter> formatter;
};

struct StateRow {
    char const* text;
    int unit;
    QValidator::State state;
};

TEST_F(QuantityValidatorTest, PartialInputIsIntermediateUntilNoContinuationCanFixIt) {
    StateRow const rows[] = {
        // Readable as it stands.
        {"5", kFoot, QValidator::Acceptable},
        {"5 ft", kFoot, QValidator::Acceptable},
        {"5'-6 1/2\"", kFoot, QValidator::Acceptable},
        {"1.7 m", kFoot, QValidator::Acceptable},
        {"(1.7)", kFoot, QValidator::Acceptable},
        {"2 m/s", kMetrePerSecond, QValidator::Acceptable},
        {"45°30'", kDegree, QValidator::Acceptable},
        {"45°", kDegree, QValidator::Acceptable},
        {"5 metres", kFoot, QValidator::Acceptable},
        // On the way there.
        {"", kFoot, QValidator::Intermediate},
        {"   ", kFoot, QValidator::Intermediate},
        {"-", kFoot, QValidator::Intermediate},
        {"5 f", kFoot, QValidator::Intermediate},
        {"5 metr", kFoot, QValidator::Intermediate},  // an alternate the formatter never writes
        {"(1.7", kFoot, QValidator::Intermediate},
        {"((1.7", kFoot, QValidator::Intermediate},
        {"1 1/", kFoot, QValidator::Intermediate},
        {"5'-", kFoot, QValidator::Intermediate},
        {"5'-6 1/", kFoot, QValidator::Intermediate},
        {"2 m/", kMetrePerSecond, QValidator::Intermediate},
        // Nothing typed after this can help.
        {"5 fx", kFoot, QValidator::Invalid},
        {"1.7 m)", kFoot, QValidator::Invalid},
        {"))", kFoot, QValidator::Invalid},
        {"2 kg", kFoot, QValidator::Invalid},
        {"2 m/s", kFoot, QValidator::Invalid},
        {"zz", kFoot, QValidator::Invalid},
    };
    for (StateRow const& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(State(QString::fromUtf8(row.text), row.unit), row.state);
    }
    // A long paste is read once, never tried with continuations.
    QString const nested = QStringLiteral("(").repeated(130) + QStringLiteral("1") + QStringLiteral(")").repeated(130);
    EXPECT_EQ(State(nested + QStringLiteral(" m"), kFoot), QValidator::Acceptable);
    EXPECT_EQ(State(QStringLiteral("5 fx").repeated(100), kFoot), QValidator::Intermediate);
}

TEST_F(QuantityValidatorTest, FixupRewritesReadableTextInTheDisplaySymbolOnly) {
    units::QuantityValidator validator(formatter.get(), kFoot);
    validator.setDisplaySymbol(kFeetInchesDash);
    struct {
        char const* text;
        char const* fixed;
    } const rows[] = {
        {"5' 6\"", "5'-6.00\""},
        {"1.7 m", "5'-6.93\""},
        {"5 f", "5 f"},
        {"junk", "junk"},
    };
    for (auto const& row : rows) {
        SCOPED_TRACE(row.text);
        QString text = QString::fromUtf8(row.text);
        validator.fixup(text);
        EXPECT_EQ(text, QString::fromUtf8(row.fixed));
    }
}

TEST_F(QuantityValidatorTest, WithoutAFormatterNothingReads) {
    units::QuantityValidator validator;
    QString text = QStringLiteral("5 ft");
    int pos = 0;
    EXPECT_EQ(validator.validate(text, pos), QValidator::Invalid);
    double value = 42.0;
    EXPECT_FALSE(validator.read(text, value));
    EXPECT_EQ(value, 42.0);
}

TEST_F(QuantityValidatorTest, ALineEditRefusesOnlyKeysThatMakeTextHopeless) {
    QLineEdit edit;
    units::QuantityValidator validator(formatter.get(), kFoot);
    edit.setValidator(&validator);
    QTest::keyClicks(&edit, QStringLiteral("5 fxt"));
    EXPECT_EQ(edit.text(), QStringLiteral("5 ft"));
    EXPECT_TRUE(edit.hasAcceptableInput());
}

TEST_F(QuantityValidatorTest, CustomSymbolTextsAreLearntAfterAReset) {
    units::QuantityValidator validator(formatter.get(), kFoot);
    constexpr int kFootSymbol = 0x202017;
    ASSERT_EQ(State(QStringLiteral("5 xy"), kFoot), QValidator::Invalid);
    ASSERT_EQ(formatter->SetSymbolFormattingString(kFootSymbol, L"{0} xyzzy"), 0);
    validator.resetSymbolTexts();
    QString text = QStringLiteral("5 xy");
    int pos = 0;
    EXPECT_EQ(validator.validate(text, pos), QValidator::Intermediate);
}

}  // namespace
