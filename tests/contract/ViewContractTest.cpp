#include "contract/ContractStores.h"
#include "contract/StoreContract.h"
#include "platform/objectmodel/Views.h"

namespace tempodial {

class ViewContract : public StoreContract
{
protected:
    static constexpr auto Table = "<view type=\"table\"><viewname>Tempodial List</viewname></view>";
};

TEST_P(ViewContract, NewFolder_HasOneOrdinaryView)
{
    const auto views = mLog->Views();
    ASSERT_EQ(views->Count(), 1);
    EXPECT_EQ(views->Item(1)->Name(), "Calendar");
    EXPECT_EQ(views->Item(1)->ViewType(), ViewType::Calendar);
    EXPECT_NE(views->Item(1)->XML().find("<displaytimeunits>30</displaytimeunits>"), std::string::npos);

    const auto inbox = mStore->Session()->GetDefaultFolder(DefaultFolder::Inbox)->Views();
    ASSERT_EQ(inbox->Count(), 1);
    EXPECT_EQ(inbox->Item(1)->Name(), "Messages");
    EXPECT_EQ(inbox->Item(1)->ViewType(), ViewType::Table);
    EXPECT_EQ(mCalendar->Views()->Item(1)->Name(), "Calendar");
}

TEST_P(ViewContract, ItemNamed_Unknown_GivesNothing)
{
    EXPECT_FALSE(mLog->Views()->ItemNamed("Tempodial List"));
}

TEST_P(ViewContract, Item_PositionOutOfRange_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mLog->Views()->Item(0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mLog->Views()->Item(2); }), 9);
}

TEST_P(ViewContract, Add_IsKnownAtOnceAndHasADefinition)
{
    const auto view
        = mLog->Views()->Add("Tempodial & Calendar", ViewType::Calendar, ViewSaveOption::ThisFolderEveryone);
    EXPECT_EQ(view->Name(), "Tempodial & Calendar");
    EXPECT_EQ(view->ViewType(), ViewType::Calendar);
    EXPECT_EQ(mLog->Views()->Count(), 2);
    EXPECT_EQ(mLog->Views()->ItemNamed("tempodial & calendar")->XML(), view->XML());
    view->SetXML(view->XML());
    view->Save();
}

TEST_P(ViewContract, Add_NameInUse_Fails)
{
    EXPECT_EQ(
        FailureNumber([&] { mLog->Views()->Add("calendar", ViewType::Table, ViewSaveOption::ThisFolderEveryone); }),
        457);
    EXPECT_EQ(FailureNumber([&] { mLog->Views()->Add("", ViewType::Table, ViewSaveOption::ThisFolderEveryone); }), 5);
}

TEST_P(ViewContract, SetXML_IsKeptFromTheNextSaveOn)
{
    const auto view = mLog->Views()->Add("Tempodial List", ViewType::Table, ViewSaveOption::ThisFolderEveryone);
    const auto before = view->XML();
    view->SetXML(Table);
    EXPECT_EQ(view->XML(), Table);
    EXPECT_EQ(mLog->Views()->ItemNamed("Tempodial List")->XML(), before);
    view->Save();
    EXPECT_EQ(mLog->Views()->ItemNamed("Tempodial List")->XML(), Table);
}

TEST_P(ViewContract, SetXML_NoViewDefinition_FailsAndChangesNothing)
{
    const auto view = mLog->Views()->Item(1);
    const auto before = view->XML();
    for (const auto* xml : { "", "text", "<view>", "<other/>", "<view/><view/>" }) {
        EXPECT_EQ(FailureNumber([&] { view->SetXML(xml); }), 5) << xml;
    }
    EXPECT_EQ(view->XML(), before);
}

TEST_P(ViewContract, Views_OfAnotherFolder_AreNotSeen)
{
    mLog->Views()->Add("Tempodial List", ViewType::Table, ViewSaveOption::ThisFolderEveryone)->Save();
    EXPECT_FALSE(mCalendar->Views()->ItemNamed("Tempodial List"));
}

INSTANTIATE_TEST_SUITE_P(Stores, ViewContract, testing::ValuesIn(ContractStores()), StoreName);

}
