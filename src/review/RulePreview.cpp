#include "review/RulePreview.h"

namespace tempodial {

namespace {

/// The texts of an activity that rules go by, made ready for them.
struct TriedTexts
{
    explicit TriedTexts(const Activity& activity)
        : subject(RuledSubject(activity))
        , people(activity.people)
    {
    }

    FoldedText subject;
    FoldedText people;
};

void NoteMove(RulePreview& preview, const Activity& activity, const std::string& to)
{
    preview.moves.Add(ProjectNameOf(activity), to, activity.duration);
    preview.targets.push_back({ activity.number, to });
}

}

RulePreview RulePreview::OfOne(
    const RuleTrial& trial, const std::string& project, const std::vector<Activity>& activities)
{
    RulePreview preview;
    const auto* applied = trial.Named(project);
    if (applied == nullptr) {
        return preview;
    }
    for (const auto& activity : activities) {
        const TriedTexts texts(activity);
        if (activity.project == applied->name || !RuleTrial::IsMatch(*applied, texts.subject, texts.people)) {
            continue;
        }
        NoteMove(preview, activity, applied->name);
        if (const auto* first = trial.First(texts.subject, texts.people); first != applied) {
            preview.disputed.Add(first->name, applied->name, activity.duration);
        }
    }
    return preview;
}

RulePreview RulePreview::OfAll(const RuleTrial& trial, const std::vector<Activity>& activities, bool onlyUnassigned)
{
    RulePreview preview;
    for (const auto& activity : activities) {
        if (onlyUnassigned && !IsUnassigned(activity)) {
            continue;
        }
        const TriedTexts texts(activity);
        const auto* first = trial.First(texts.subject, texts.people);
        if (first == nullptr || first->name == activity.project) {
            continue;
        }
        if (activity.isProjectByHand && !onlyUnassigned) {
            ++preview.keptByHand;
        } else {
            NoteMove(preview, activity, first->name);
        }
    }
    return preview;
}

}
