#include "engine/reports/TempodialAnalyser.h"
#include "support/EngineFixture.h"

using testing::ElementsAre;

namespace tempodial {

namespace {

class TempodialAnalyserPageTest : public EngineFixture
{
protected:
    void Display(const std::string& feedback)
    {
        TempodialAnalyser analyser(mPlatform);
        analyser.Initialize(mMain, mApplication, mLog);
        ForgetTrace();
        analyser.DisplayAnalysis("Tuesday", "9:00 AM", "5:00 PM", "7 hours", "1 hour", 12, "late & long", feedback);
    }
    std::string Page() const { return mFolder.Read("Tempodial/Analysis.html"); }
};

TEST_F(TempodialAnalyserPageTest, DisplayAnalysis_Template_IsFilledUnescaped)
{
    mFolder.Write("Tempodial/analysistemplate.html",
        "#DAY#|#STARTTIME#|#ENDTIME#|#TIMEATPC#|#TIMEINMEETINGS#|#NUMTASKS#|#ALERT1#|#FEEDBACK1#|#ALERT2#");
    Display("<b>good</b>");
    EXPECT_EQ(Page(), "Tuesday|9:00 AM|5:00 PM|7 hours|1 hour|12|late & long|<b>good</b>|#ALERT2#");
    EXPECT_THAT(Traced(), ElementsAre("TDAnalyser display data", "TDAnalyser read contents"));
}

TEST_F(TempodialAnalyserPageTest, DisplayAnalysis_TokenTwice_IsReplacedInBothPlaces)
{
    mFolder.Write("Tempodial/analysistemplate.html", "#NUMTASKS#\r\n#FEEDBACK1# #NUMTASKS#");
    Display("#DAY# is done by then");
    EXPECT_EQ(Page(), "12\r\n#DAY# is done by then 12");
}

TEST_F(TempodialAnalyserPageTest, DisplayAnalysis_NoTemplate_MakesAnEmptyPage)
{
    mFolder.Write("Tempodial/Analysis.html", "an older one");
    Display("");
    EXPECT_TRUE(mFolder.Has("Tempodial/Analysis.html"));
    EXPECT_EQ(Page(), "");
    EXPECT_THAT(Traced(),
        ElementsAre("TDAnalyser display data", "TempodialCommonUtils OpenDataFile error File not found OpenTextFile"));
}

TEST_F(TempodialAnalyserPageTest, DisplayAnalysis_EmptyTemplate_CostsOneLineAndMakesAnEmptyPage)
{
    mFolder.Write("Tempodial/analysistemplate.html", "");
    Display("");
    EXPECT_TRUE(mFolder.Has("Tempodial/Analysis.html"));
    EXPECT_EQ(Page(), "");
    EXPECT_THAT(Traced(),
        ElementsAre(
            "TDAnalyser display data", "TDAnalyser Display:Input past end of file", "TDAnalyser read contents"));
}

}

}
