#pragma once

#include "desktop/AgendaGeometry.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tempodial {

/// Stripes of one day that follow each other within five minutes, with no activity between them that has a text of its
/// own: one label stands for all.
struct ShortRun
{
    PieceRange pieces;
    /// Where a label may be: beside the stripes, from the activity above to that below.
    PixelBox room;
    /// The middle of the stripes, at which the label is, as far as there is room.
    double middle = 0;
    /// The activity whose project they are drawn in when short ones are folded: that of the neighbours on both sides,
    /// when these have one project and stand as close as the stripes among themselves.
    std::optional<std::size_t> folded;

    /// Where a label of that height is; nothing when there is no room for it.
    std::optional<PixelBox> LabelBox(double height) const;
};

/// The runs of stripes of a layout, in its order.
std::vector<ShortRun> ShortRunsOf(
    const std::vector<Activity>& activities, const AgendaLayout& layout, const AgendaGeometry& geometry);

}
