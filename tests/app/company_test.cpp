#include "app/company.h"
#include "output/mailsettings.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class CompanyTest : public BriskoTest {
protected:
    static void setColumn(const QString &column, const db::Param &value) {
        db::execute(u"UPDATE tblSystem SET %1 = ?"_s.arg(column), {value});
    }
};

TEST_F(CompanyTest, FlagsMailServerAndNullsFollowTheirRules) {
    MailSettings settings;
    settings.mailServer = u"smtp.example.org"_s;
    settings.store();
    setColumn(u"resetNumberEOY"_s, -1);
    setColumn(u"hideSalesTax"_s, -1);
    setColumn(u"hideAcctBalance"_s, 2);
    setColumn(u"hideDiscountField"_s, 1);
    ASSERT_TRUE(modMain::loadCompanyInfo());
    EXPECT_FALSE(company().resetNumberEOY);
    EXPECT_TRUE(company().hideSalesTax);
    EXPECT_TRUE(company().hideAcctBalance);
    EXPECT_TRUE(company().hideDiscountField);

    // A True that only switches on survives a reload from a file holding 0.
    setColumn(u"hideDiscountField"_s, 0);
    setColumn(u"hideSalesTax"_s, 0);
    ASSERT_TRUE(modMain::loadCompanyInfo());
    EXPECT_TRUE(company().hideDiscountField);
    EXPECT_FALSE(company().hideSalesTax);
    EXPECT_EQ(company().mailServer, u"smtp.example.org"_s);

    company().city = u"Leeds"_s;
    for (const QString &column : {u"city"_s, u"tagline"_s, u"numberFormat"_s})
        setColumn(column, nullptr);
    ASSERT_TRUE(modMain::loadCompanyInfo());
    EXPECT_EQ(company().city, u"Leeds"_s);
    EXPECT_EQ(company().tagline, u""_s);
    EXPECT_EQ(company().numberFormat, u"00000"_s);

    // A Null where a value is required fails; an empty table changes nothing.
    setColumn(u"restrictAccess"_s, nullptr);
    const BriskoError error = errorOf([] { modMain::loadCompanyInfo(); });
    EXPECT_EQ(error.number(), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(error.description(), u"modMain.loadCompanyInfo:  Invalid use of Null"_s);
    db::execute(u"DELETE FROM tblSystem"_s);
    EXPECT_FALSE(modMain::loadCompanyInfo());
    EXPECT_EQ(company().city, u"Leeds"_s);
}

} // namespace
