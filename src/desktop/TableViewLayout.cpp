#include "desktop/TableViewLayout.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "desktop/FieldNames.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace tempodial {

namespace {

/// Properties that the definition names otherwise than people do: by a schema of their own, or by a number.
struct NamedProperty
{
    std::string_view ending;
    std::string_view field;
};

constexpr std::array<NamedProperty, 6> NamedProperties { {
    { "urn:schemas:calendar:dtstart", StartField },
    { "urn:schemas:calendar:dtend", EndField },
    { "urn:schemas:httpmail:subject", SubjectField },
    { "/820d0040", StartField },
    { "/820e0040", EndField },
    { "/82130003", DurationField },
} };

/// A definition as it is read.
class Definition
{
public:
    Definition(const XmlTree& tree, XmlTree::Index view)
        : mTree(tree)
        , mView(view)
    {
    }

    std::vector<TableColumn> Columns() const
    {
        std::vector<TableColumn> columns;
        ForEach(mView, "column", [&](XmlTree::Index element) {
            TableColumn column;
            column.field = FieldOf(element);
            column.heading = HeadingOf(element);
            column.width = WidthOf(element);
            column.alignment = AlignmentOf(TextOf(element, "style"));
            // The address of an item is a column, too, and nobody sees it.
            if (!column.heading.empty()) {
                columns.push_back(std::move(column));
            }
        });
        return columns;
    }

    std::vector<TableOrder> Orders(std::string_view list) const
    {
        std::vector<TableOrder> orders;
        if (const auto place = mTree.Find(mView, list); place != XmlTree::None) {
            ForEach(place, "order", [&](XmlTree::Index element) {
                orders.push_back({ FieldOf(element), TextOf(element, "sort") == "desc" });
            });
        }
        return orders;
    }

private:
    template <class Work> void ForEach(XmlTree::Index place, std::string_view name, Work&& work) const
    {
        for (auto element = mTree.Find(place, name); element != XmlTree::None; element = mTree.Next(element)) {
            work(element);
        }
    }

    std::string TextOf(XmlTree::Index element, std::string_view name) const
    {
        const auto found = mTree.Find(element, name);
        return found == XmlTree::None ? std::string() : mTree.Text(found);
    }

    std::string HeadingOf(XmlTree::Index element) const
    {
        auto heading = TextOf(element, "userheading");
        return heading.empty() ? TextOf(element, "heading") : heading;
    }

    /// Properties of the user's own end in their name.
    std::string FieldOf(XmlTree::Index element) const
    {
        const auto property = TextOf(element, "prop");
        const auto* const named = std::find_if(NamedProperties.begin(), NamedProperties.end(),
            [&property](const NamedProperty& known) { return property.ends_with(known.ending); });
        return std::string(
            named == NamedProperties.end() ? std::string_view(property).substr(property.rfind('/') + 1) : named->field);
    }

    int WidthOf(XmlTree::Index element) const
    {
        constexpr std::int32_t Usual = 100;
        constexpr std::int32_t Least = 20;
        constexpr std::int32_t Most = 2000;
        try {
            return std::clamp(ToInt32(TextOf(element, "width")), Least, Most);
        } catch (const Failure&) {
            return Usual;
        }
    }

    static TableColumn::Alignment AlignmentOf(std::string_view style)
    {
        if (style.find("text-align:right") != std::string_view::npos) {
            return TableColumn::Alignment::Right;
        }
        const bool isCentred = style.find("text-align:center") != std::string_view::npos;
        return isCentred ? TableColumn::Alignment::Centre : TableColumn::Alignment::Left;
    }

    const XmlTree& mTree;
    XmlTree::Index mView;
};

}

std::optional<TableViewLayout> TableViewLayout::Read(const std::string& xml, XmlParser& parser)
{
    XmlTree tree;
    if (!parser.Parse(xml, tree)) {
        return std::nullopt;
    }
    const auto view = tree.Find(XmlTree::Document, "view");
    if (view == XmlTree::None) {
        return std::nullopt;
    }
    const Definition definition(tree, view);
    TableViewLayout layout { definition.Columns(), definition.Orders("groupby"), definition.Orders("orderby") };
    return layout.columns.empty() ? std::nullopt : std::optional(std::move(layout));
}

}
