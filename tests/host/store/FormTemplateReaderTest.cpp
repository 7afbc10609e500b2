#include "host/store/FormTemplateReader.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tempodial {

class FormTemplateReaderTest : public testing::Test
{
protected:
    static std::string Product() { return std::string(TEMPODIAL_SHARE_DIR) + "/WorkLogForm.oft"; }

    TempFolder mFolder;
};

TEST_F(FormTemplateReaderTest, Read_TheProductsForm_GivesClassFieldsAndPage)
{
    const auto form = FormTemplateReader::Read(Product());
    EXPECT_EQ(form.messageClass, "IPM.Appointment.TDActivity1");
    EXPECT_EQ(form.displayName, "TDActivity1");
    EXPECT_THAT(form.fields,
        testing::ElementsAre(ItemProperty { "Type", PropertyType::Text, {} },
            ItemProperty { "Day", PropertyType::DateTime, {} }, ItemProperty { "StartTime", PropertyType::Text, {} },
            ItemProperty { "Project", PropertyType::Text, {} }, ItemProperty { "Description", PropertyType::Text, {} },
            ItemProperty { "People", PropertyType::Text, {} },
            ItemProperty { "Keyword", PropertyType::Text, "<word or phrase to match an activity to this project>" },
            ItemProperty { "ApplyPast", PropertyType::YesNo, false }));
    EXPECT_THAT(form.page, testing::HasSubstr("ProjectComboBox"));
}

TEST_F(FormTemplateReaderTest, Read_PathJoinedByABackslash_IsTheSame)
{
    EXPECT_EQ(FormTemplateReader::Read(std::string(TEMPODIAL_SHARE_DIR) + "\\WorkLogForm.oft"),
        FormTemplateReader::Read(Product()));
}

TEST_F(FormTemplateReaderTest, Read_NoTemplate_Fails)
{
    EXPECT_EQ(FailureNumber([&] { FormTemplateReader::Read(mFolder.Path("absent.oft")); }), 53);
    EXPECT_EQ(FailureNumber([&] { FormTemplateReader::Read(mFolder.Path("absent/form.oft")); }), 76);
    EXPECT_EQ(FailureNumber([&] { FormTemplateReader::Read(mFolder.Path()); }), 70);
    EXPECT_EQ(FailureNumber([&] { FormTemplateReader::Read(mFolder.Write("empty.oft", "")); }), 440);
    EXPECT_EQ(FailureNumber([&] { FormTemplateReader::Read(mFolder.Write("text.oft", "a text")); }), 440);
}

TEST_F(FormTemplateReaderTest, Read_DamagedTemplate_FailsOrGivesAForm)
{
    std::ifstream file(Product(), std::ios::binary);
    const std::string whole { std::istreambuf_iterator<char>(file), {} };
    ASSERT_GT(whole.size(), 1000U);
    for (std::size_t size = 0; size < whole.size(); size += 97) {
        const auto number
            = FailureNumber([&] { FormTemplateReader::Read(mFolder.Write("f.oft", whole.substr(0, size))); });
        ASSERT_TRUE(number == 0 || number == 440) << size;
    }
    for (std::size_t at = 0; at < whole.size(); at += 31) {
        auto bytes = whole;
        bytes.replace(at, 4, "\xff\xff\xff\x7f", std::min<std::size_t>(4, bytes.size() - at));
        const auto number = FailureNumber([&] { FormTemplateReader::Read(mFolder.Write("f.oft", bytes)); });
        ASSERT_TRUE(number == 0 || number == 440) << at;
    }
}

}
