#include "desktop/ListRows.h"

#include "base/Text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tempodial {

namespace {

/// The order of activities in a view.
class ViewOrder
{
public:
    ViewOrder(const std::vector<Activity>& activities, const TableViewLayout& view, const FieldValues& values)
        : mOrders(view.groups)
    {
        mOrders.insert(mOrders.end(), view.orders.begin(), view.orders.end());
        mKeys.reserve(activities.size() * mOrders.size());
        for (const auto& activity : activities) {
            for (const auto& order : mOrders) {
                mKeys.push_back(values.ValueOf(activity, order.field));
            }
        }
    }

    bool IsBefore(std::size_t one, std::size_t other) const
    {
        for (std::size_t place = 0; place < mOrders.size(); ++place) {
            const auto order = FieldValues::Compare(KeyOf(one, place), KeyOf(other, place));
            if (order != 0) {
                return mOrders[place].isDescending ? order > 0 : order < 0;
            }
        }
        return false;
    }

    /// True when the activities have one value of the field that they are grouped by.
    bool IsOneGroup(std::size_t one, std::size_t other) const
    {
        return FieldValues::Compare(KeyOf(one, 0), KeyOf(other, 0)) == 0;
    }

private:
    const Variant& KeyOf(std::size_t activity, std::size_t place) const
    {
        return mKeys[activity * mOrders.size() + place];
    }

    std::vector<TableOrder> mOrders;
    std::vector<Variant> mKeys;
};

}

ListRows::ListRows(const std::vector<Activity>& activities, const TableViewLayout& view, const FieldValues& values,
    std::set<std::string> folded)
    : mFolded(std::move(folded))
    , mHasHeadings(!view.groups.empty())
{
    const ViewOrder order(activities, view, values);
    std::vector<std::size_t> places(activities.size());
    std::iota(places.begin(), places.end(), std::size_t { 0 });
    std::stable_sort(places.begin(), places.end(),
        [&order](std::size_t one, std::size_t other) { return order.IsBefore(one, other); });
    for (const auto place : places) {
        const auto& activity = activities[place];
        if (mGroups.empty() || (mHasHeadings && !order.IsOneGroup(mGroups.back().activities.back(), place))) {
            mGroups.emplace_back();
            if (mHasHeadings) {
                mGroups.back().name = values.TextOf(activity, view.groups.front().field);
                mGroups.back().key = Fold(mGroups.back().name);
                mGroups.back().isFolded = mFolded.contains(mGroups.back().key);
            }
        }
        mGroups.back().minutes += activity.duration;
        mGroups.back().activities.push_back(place);
    }
    MakeRows();
}

void ListRows::SetFolded(std::size_t group, bool isFolded)
{
    auto& changed = mGroups[group];
    changed.isFolded = isFolded;
    if (isFolded) {
        mFolded.insert(changed.key);
    } else {
        mFolded.erase(changed.key);
    }
    MakeRows();
}

void ListRows::MakeRows()
{
    mRows.clear();
    for (std::size_t group = 0; group < mGroups.size(); ++group) {
        if (mHasHeadings) {
            mRows.push_back({ group, std::nullopt });
        }
        if (!mGroups[group].isFolded) {
            for (const auto activity : mGroups[group].activities) {
                mRows.push_back({ group, activity });
            }
        }
    }
}

}
