#include "host/windows/HostInspectors.h"

#include "host/windows/InspectorFixture.h"

namespace tempodial {

class HostInspectorsTest : public InspectorFixture
{
};

TEST_F(HostInspectorsTest, Open_RefusedAfterItCameToTheFront_LeavesTheOneBefore)
{
    const auto before = mApplication->OpenInspector(NewAppointment("before"));
    const auto item = NewActivity();
    const auto noting = Note(item, [&](const auto&, bool& cancel) {
        item->Display();
        cancel = true;
    });
    EXPECT_FALSE(mApplication->OpenInspector(item));
    ASSERT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(before));
    EXPECT_EQ(mApplication->ActiveInspector()->Caption(), "before - Appointment");
}

}
