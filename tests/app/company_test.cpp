#include "app/briskoerror.h"
#include "app/company.h"
#include "app/database.h"
#include "output/mailsettings.h"
#include "support/briskotest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class CompanyTest : public BriskoTest {
protected:
    void setColumn(const QString &column, const QVariant &value)
    {
        db::execute(u"UPDATE tblSystem SET %1 = ?"_s.arg(column),
                    {value.isNull() ? db::Param(nullptr) : db::Param(value.toString())});
    }
};

TEST_F(CompanyTest, ANewDatabaseGivesAStartingCompany)
{
    const Company &c = company();
    EXPECT_EQ(c.numberFormat, u"[00000]"_s);
    EXPECT_EQ(c.otherFieldName, u"Other"_s);
    EXPECT_EQ(c.currencySymbol, 36);
    EXPECT_TRUE(c.resetNumberEOY);
    EXPECT_TRUE(c.useAutoComplete);
    EXPECT_FALSE(c.restrictAccess);
}

TEST_F(CompanyTest, NullTextsKeepWhatTheRecordHeldAndNumberFormatFallsBack)
{
    company().city = u"Leeds"_s;
    setColumn(u"city"_s, {});
    setColumn(u"tagline"_s, {});
    setColumn(u"numberFormat"_s, {});
    ASSERT_TRUE(modMain::loadCompanyInfo());
    EXPECT_EQ(company().city, u"Leeds"_s);
    EXPECT_EQ(company().tagline, u""_s);
    EXPECT_EQ(company().numberFormat, u"00000"_s);
}

TEST_F(CompanyTest, EachFlagFollowsItsOwnRule)
{
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
}

TEST_F(CompanyTest, ANullWhereAValueIsRequiredFailsWithThePrefix)
{
    setColumn(u"restrictAccess"_s, {});
    try {
        modMain::loadCompanyInfo();
        FAIL() << "a Null flag was read";
    } catch (const BriskoError &error) {
        EXPECT_EQ(error.number(), 94);
        EXPECT_EQ(error.description(), u"modMain.loadCompanyInfo:  Invalid use of Null"_s);
    }
}

TEST_F(CompanyTest, AnEmptyTableChangesNothing)
{
    company().companyName = u"Before"_s;
    db::execute(u"DELETE FROM tblSystem"_s);
    EXPECT_FALSE(modMain::loadCompanyInfo());
    EXPECT_EQ(company().companyName, u"Before"_s);
}

TEST_F(CompanyTest, MailServerComesFromTheStoredMailSettings)
{
    EXPECT_EQ(company().mailServer, u""_s);
    MailSettings settings;
    settings.mailServer = u"smtp.example.org"_s;
    settings.mailPort = 587;
    settings.useTLS = true;
    settings.store();
    ASSERT_TRUE(modMain::loadCompanyInfo());
    EXPECT_EQ(company().mailServer, u"smtp.example.org"_s);
    EXPECT_EQ(MailSettings::stored().mailPort, 587);
    EXPECT_TRUE(MailSettings::stored().useTLS);
}

} // namespace
