#include "receipttestbase.h"

#include "app/company.h"

using namespace Qt::Literals::StringLiterals;

using ReceiptNumberFormatTest = ReceiptTest;

TEST_F(ReceiptNumberFormatTest, RendersTheExamplesOnTwentyFifthOctober2013) {
    const struct {
        QString format, number, expected;
    } examples[] = {
        {u"yy-[00]"_s, u"7"_s, u"13-07"_s},    {u"mmyy [0000]"_s, u"123"_s, u"1013 0123"_s},
        {u"[00000]"_s, u"42"_s, u"00042"_s},   {u"[000]-yyyy"_s, u"1234"_s, u"1234-2013"_s},
        {u"yy-[00]"_s, u"100"_s, u"13-100"_s}, {u"[00]]"_s, u"5"_s, u"05]"_s},
        {u"[00000]"_s, u"-1"_s, u"-00001"_s},
    };
    for (const auto &example : examples) {
        company().numberFormat = example.format;
        EXPECT_EQ(modMain::formatReceiptNumber(example.number, QDate(2013, 10, 25)),
                  example.expected);
    }
    EXPECT_TRUE(boxes().shown.isEmpty());
}

// Without brackets there is no way to number a receipt: the program ends.
TEST_F(ReceiptNumberFormatTest, FormatWithoutBracketsEndsTheProgram) {
    const QStringList formats = {u"00000"_s, u"yy-[00"_s, u"yy-]00["_s};
    QStringList expected;
    for (const QString &format : formats) {
        company().numberFormat = format;
        EXPECT_EQ(modMain::formatReceiptNumber(u"7"_s, QDate(2013, 10, 25)), QString());
        expected.append(u"Error | Invalid receipt number format:  "_s + format +
                        u".  This program can not continue | Critical"_s);
    }
    EXPECT_EQ(boxes().lines(), expected);
    EXPECT_EQ(process().endProgramCalls, 3);
}
