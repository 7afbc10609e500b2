#include "support/ProgramFixture.h"

#include <fstream>
#include <sstream>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// `projects export` and `projects import`.
class ProjectsFileTest : public ProgramFixture
{
protected:
    std::string Write(const std::string& text) const
    {
        std::ofstream(mFolder.Path("in.toml"), std::ios::binary) << text;
        return mFolder.Path("in.toml");
    }
    static nlohmann::json Parsed(const char* text) { return nlohmann::json::parse(text); }
};

}

TEST_F(ProjectsFileTest, Export_Projects_ComeBackInAnotherProfile)
{
    Json({ "projects", "set", "R&D \"x\"", "--subject", "a, \"b c\"", "--not-subject", "Größe\\", "--people", "Ann;Zoë",
        "--precedence", "low" });
    const auto path = mFolder.Path("out.toml");
    EXPECT_EQ(Run({ "projects", "export", path }).out, "Written: " + path + "\n");
    EXPECT_EQ(Run({ "projects", "export", path }).out, "Replaced: " + path + "\n");
    const auto projects = Json({ "projects" });
    EXPECT_EQ(Json({ "projects", "export" }), projects);

    mProfile = mFolder.Path("other");
    EXPECT_EQ(Json({ "projects", "import", path }).size(), 6U);
    EXPECT_EQ(Json({ "projects" }), projects);
}

TEST_F(ProjectsFileTest, Export_WithoutFile_IsPrinted)
{
    for (const auto* name : { "Critical", "Other", "Personal", "Supportive" }) {
        Run({ "projects", "remove", name });
    }
    EXPECT_EQ(Run({ "projects", "export" }).out,
        "# Projects of Tempodial, in the order in which they are tried.\n"
        "\n"
        "[[project]]\n"
        "name = \"Wish\"\n"
        "precedence = \"medium\"\n"
        "subject = \"\"\n"
        "not-subject = \"\"\n"
        "people = \"\"\n");
}

TEST_F(ProjectsFileTest, Import_Records_AddAndChangeThoseNamed)
{
    Json({ "projects", "set", "Wish", "--subject", "s", "--people", "p" });
    EXPECT_EQ(Json({ "projects", "import",
                  Write("[[project]]\nname = \"wish\"\nprecedence = \"high\"\n\n[[project]]\nname = \"New\"\n") }),
        Parsed(R"([
            { "name": "Wish", "precedence": "1", "subject": "s", "notSubject": "", "people": "p" },
            { "name": "New", "precedence": "2", "subject": "", "notSubject": "", "people": "" } ])"));
    EXPECT_EQ(Json({ "projects" }).size(), 6U);
    EXPECT_EQ(Run({ "projects", "import", Write("") }).out, "0 projects are kept.\n");
}

TEST_F(ProjectsFileTest, Import_BadRecord_ChangesNothing)
{
    const auto before = Json({ "projects" });
    const std::string good = "[[project]]\nname = \"Good\"\n";
    for (const auto& [bad, message] : std::vector<std::pair<std::string, std::string>> {
             { "[[project]]\nsubject = \"a\"\n", "line 3: the project has no name" },
             { "[[project]]\nname = \" \"\n", "line 3: the name of a project can't be blank" },
             { "[[project]]\nname = \"a|b\"\n", "line 3: Project names may not include the | character." },
             { "[[project]]\nname = \"No Project\"\n", "line 3: Invalid project selected" },
             { "[[project]]\nname = \"B\"\nsubject = \"a|b\"\n", "line 3: a rule can't hold \"|\"" },
             { "[[project]]\nname = \"B\"\nprecedence = \"1\"\n", "line 3: precedence can't be \"1\"" },
             { "[[project]]\nname = \"B\"\ncolour = \"red\"\n", "line 3: a project has no \"colour\"" },
             { "[[project]]\nname = \"good\"\n", "line 3: the project \"good\" stands in the file a second time" },
             { "[[project]]\nname = 5\n", "line 4: name is no text" },
             { "[[project]]\nname = \"B\n", "line 4: this is no TOML" },
         }) {
        EXPECT_THAT(Refusal({ "projects", "import", Write(good + bad) }, 1), HasSubstr("in.toml, " + message));
        EXPECT_EQ(Json({ "projects" }), before);
    }
    EXPECT_THAT(Refusal({ "projects", "import", mFolder.Path("none.toml") }, 1), HasSubstr("couldn't be read"));
    EXPECT_THAT(Refusal({ "projects", "import" }, 2), HasSubstr("FILE is required"));
}

}
