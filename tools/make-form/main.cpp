// Writes the form template of the activities: a message file with the class, the user's fields and their defaults, and
// the layout of the page "Activity" for the portable host.

#include "ClassId.h"
#include "CompoundFile.h"
#include "FieldDefinitions.h"
#include "MessageFile.h"
#include "NamedProperties.h"

#include <cstdio>
#include <exception>

namespace tempodial {
namespace {

/// The last part of the class is the form's name.
constexpr std::string_view FormName = "TDActivity1";
constexpr std::string_view KeywordPrompt = "<word or phrase to match an activity to this project>";

/// The layout: rows of controls, each with its name, kind, label and the field that it shows. The application is filled
/// in by the program and bound to nothing.
constexpr const char* Page = R"({
  "page": "Activity",
  "rows": [
    [{ "name": "ProjectComboBox", "kind": "combo", "label": "&Project", "field": "Project" }],
    [{ "name": "DescCombo", "kind": "combo", "label": "&Keyword", "field": "Keyword" }],
    [{ "name": "ApplyCheckBox", "kind": "check", "label": "&Apply to past activities", "field": "ApplyPast" }],
    [{ "name": "SubjectBox", "kind": "text", "label": "&Description", "field": "Description" }],
    [{ "name": "ApplicationBox", "kind": "text", "label": "App&lication" }],
    [{ "name": "PeopleBox", "kind": "text", "label": "Pe&ople", "field": "People" }],
    [
      { "name": "StartBox", "kind": "text", "label": "&Start", "field": "Start" },
      { "name": "EndBox", "kind": "text", "label": "&End", "field": "End" }
    ]
  ]
}
)";

void WriteForm(const std::string& path)
{
    MessageFile message;
    message.SetText(0x001a, "IPM.Appointment." + std::string(FormName)); // message class
    message.SetText(0x3001, FormName); // the form's name to show, until the program gives it another
    message.SetNumber(0x0e07, 8); // a message that wasn't sent
    message.SetNumber(0x1080, 0x400); // the icon of an appointment
    message.SetNumber(0x340d, 0x40000); // texts are UTF-16

    NamedProperties names;
    constexpr std::int32_t HasFieldDefinitions = 0x02000000;
    message.SetBoolean(names.Add(CommonProperties, 0x8503), false); // no reminder
    message.SetNumber(names.Add(AppointmentProperties, 0x8205), 0); // shown as free
    message.SetNumber(names.Add(CommonProperties, 0x8542), HasFieldDefinitions);
    message.SetBinary(names.Add(CommonProperties, 0x8540),
        DefineFields({ { "Type", FieldType::Text }, { "Day", FieldType::Date }, { "StartTime", FieldType::Text },
            { "Project", FieldType::Text }, { "Description", FieldType::Text }, { "People", FieldType::Text },
            { "Keyword", FieldType::Text }, { "ApplyPast", FieldType::YesNo } }));
    message.SetText(names.Add("Keyword"), KeywordPrompt);
    message.SetBoolean(names.Add("ApplyPast"), false);

    CompoundFile file(path, TemplateClass);
    names.WriteTo(file);
    message.WriteTo(file);
    file.Write("TempodialPage", Page);
    file.Close();
}

}
}

int main(int count, char** arguments)
{
    if (count != 2) {
        static_cast<void>(std::fputs("usage: make-form FILE\n", stderr));
        return 2;
    }
    try {
        tempodial::WriteForm(arguments[1]);
        return 0;
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "make-form: %s\n", error.what()));
        return 1;
    }
}
