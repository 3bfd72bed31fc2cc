#include "receipttestbase.h"

#include "app/company.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct FormatCase {
    const char16_t *format;
    const char16_t *number;
    const char16_t *expected;
};

} // namespace

class ReceiptNumberFormatTest : public ReceiptTest,
                                public ::testing::WithParamInterface<FormatCase> {
protected:
    static QString formatted(const QString &format, const QString &number) {
        company().numberFormat = format;
        return modMain::formatReceiptNumber(number, QDate(2013, 10, 25));
    }
};

TEST_P(ReceiptNumberFormatTest, RendersOnTwentyFifthOctober2013) {
    const FormatCase &example = GetParam();
    EXPECT_EQ(formatted(QString::fromUtf16(example.format), QString::fromUtf16(example.number)),
              QString::fromUtf16(example.expected));
    EXPECT_TRUE(boxes().shown.isEmpty());
    EXPECT_FALSE(process().ended());
}

INSTANTIATE_TEST_SUITE_P(Examples, ReceiptNumberFormatTest,
                         ::testing::Values(FormatCase{u"yy-[00]", u"7", u"13-07"},
                                           FormatCase{u"mmyy [0000]", u"123", u"1013 0123"},
                                           FormatCase{u"[00000]", u"42", u"00042"},
                                           FormatCase{u"[000]-yyyy", u"1234", u"1234-2013"},
                                           FormatCase{u"yy-[00]", u"100", u"13-100"},
                                           FormatCase{u"[00]]", u"5", u"05]"},
                                           FormatCase{u"[00000]", u"-1", u"-00001"}));

using ReceiptNumberFormatFailureTest = ReceiptTest;

// Without brackets there is no way to number a receipt: the program ends.
TEST_F(ReceiptNumberFormatFailureTest, FormatWithoutBracketsEndsTheProgram) {
    for (const QString &format : {u"00000"_s, u"yy-[00"_s, u"yy-]00["_s}) {
        company().numberFormat = format;
        boxes().shown.clear();
        process().endProgramCalls = 0;
        EXPECT_EQ(modMain::formatReceiptNumber(u"7"_s, QDate(2013, 10, 25)), QString());
        ASSERT_EQ(boxes().shown.size(), 1) << format.toStdString();
        const auto &box = boxes().shown.first();
        EXPECT_EQ(box.text, u"Invalid receipt number format:  "_s + format +
                                u".  This program can not continue"_s);
        EXPECT_EQ(box.title, u"Error"_s);
        EXPECT_EQ(box.icon, Dialogs::Icon::Critical);
        EXPECT_EQ(box.buttons, Dialogs::Buttons::Ok);
        EXPECT_EQ(process().endProgramCalls, 1);
    }
}
