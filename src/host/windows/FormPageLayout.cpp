#include "host/windows/FormPageLayout.h"

#include <nlohmann/json.hpp>

#include <map>
#include <stdexcept>

namespace tempodial {

namespace {

using Json = nlohmann::json;

FormPageLayout::Field FieldOf(const Json& json)
{
    static const std::map<std::string, FormPageLayout::Kind> kinds {
        { "text", FormPageLayout::Kind::Text },
        { "combo", FormPageLayout::Kind::Combo },
        { "check", FormPageLayout::Kind::Check },
    };
    FormPageLayout::Field field;
    field.name = json.at("name").get<std::string>();
    field.kind = kinds.at(json.at("kind").get<std::string>());
    field.label = json.value("label", "");
    field.field = json.value("field", "");
    return field;
}

}

std::optional<FormPageLayout> FormPageLayout::Read(const std::string& text)
{
    try {
        const auto json = Json::parse(text);
        FormPageLayout layout;
        layout.name = json.at("page").get<std::string>();
        for (const auto& row : json.at("rows")) {
            auto& fields = layout.rows.emplace_back();
            for (const auto& control : row) {
                fields.push_back(FieldOf(control));
            }
        }
        return layout;
    } catch (const Json::exception&) {
        return std::nullopt;
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

}
