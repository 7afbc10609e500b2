#include "slots/ViewMaker.h"

#include "base/Text.h"
#include "slots/PlaceRule.h"
#include "slots/PlainText.h"

namespace tempodial {

namespace {

/// What stands for a title that nobody is to know.
constexpr auto PrivateText = "private";
constexpr auto NoProjectText = "No Project";

constexpr int FirstDocumentKind = 2;
constexpr int MailKind = 5;

/// What the caption of a mail window is about, empty when it is a folder or a mail without a subject.
std::string SubjectOf(std::string_view text)
{
    constexpr std::string_view Windows[] { " - Message", " - Appointment", " - Meeting", " - Event", " - Task",
        " - Contact" };
    // What stands in brackets behind it is the message's form.
    if (const auto form = text.rfind(" ("); form != std::string_view::npos && text.ends_with(')')) {
        text = text.substr(0, form);
    }
    for (const auto window : Windows) {
        if (text.ends_with(window)) {
            text.remove_suffix(window.size());
            return text == "Untitled" ? "" : std::string(text);
        }
    }
    return "";
}

/// The project that is said of a window itself, else the one that a rule gives it.
std::string ProjectOf(const Sighting& sighting, const PrivacyRules::Verdict& verdict)
{
    auto project = ProjectText(sighting.project);
    return project.empty() && verdict.project != nullptr ? ProjectText(verdict.project->text) : project;
}

}

std::string ProjectText(std::string_view name)
{
    auto project = NodeText(name, LongestName);
    return EqualIgnoringCase(project, NoProjectText) ? "" : project;
}

const Program& ViewMaker::ProgramOf(const Sighting& sighting) const
{
    constexpr char Between = '\x1f';
    constexpr std::size_t MostPrograms = 1000;
    if (mKnown.size() > MostPrograms) {
        mKnown.clear();
    }
    const auto [found, isNew] = mKnown.try_emplace(sighting.program + Between + sighting.programName);
    if (isNew) {
        found->second = mPrograms.Find(sighting.program, sighting.programName);
    }
    return found->second;
}

Seen ViewMaker::Make(const Sighting& sighting) const
{
    const auto& program = ProgramOf(sighting);
    if (program.sort == ProgramSort::Lock) {
        return { Seen::Kind::Locked, {} };
    }
    const auto verdict = mRules.Find(sighting, program);
    if (auto ruled = Ruled(sighting, program, verdict)) {
        return std::move(*ruled);
    }
    const auto cleaned = TitleCleaner::Clean(sighting.title, program);
    if (program.sort == ProgramSort::Shell || cleaned.isNothing) {
        return { Seen::Kind::Nothing, {} };
    }
    auto view = Titled(program, cleaned, PlainText(sighting.host));
    view.project = ProjectOf(sighting, verdict);
    return { Seen::Kind::View, std::move(view) };
}

Seen ViewMaker::MakeStated(const Sighting& sighting) const
{
    Program program;
    program.name = NodeText(sighting.program, LongestName);
    const auto verdict = mRules.FindStated(sighting, program);
    if (auto ruled = Ruled(sighting, program, verdict)) {
        return std::move(*ruled);
    }
    const auto text = NodeText(sighting.title, LongestText);
    return { Seen::Kind::View, { program.name, program.sort, 0, text, text, ProjectOf(sighting, verdict) } };
}

std::optional<Seen> ViewMaker::Ruled(
    const Sighting& sighting, const Program& program, const PrivacyRules::Verdict& verdict)
{
    using Action = PrivacyRule::Action;
    const auto* hiding = verdict.hiding;
    if (hiding != nullptr && hiding->action == Action::Drop) {
        return Seen { Seen::Kind::Dropped, {} };
    }
    if (program.sort == ProgramSort::Shell || (hiding == nullptr && !sighting.isPrivate)) {
        return std::nullopt;
    }
    auto view = NameOnly(program);
    view.project = ProjectOf(sighting, verdict);
    if (hiding != nullptr && hiding->action == Action::Replace) {
        view.text = NodeText(hiding->text, LongestText);
        view.place = view.text;
    }
    return Seen { Seen::Kind::View, std::move(view) };
}

SlotView ViewMaker::NameOnly(const Program& program)
{
    return { program.name, program.sort, 0, PrivateText, PrivateText, "" };
}

SlotView ViewMaker::Titled(const Program& program, const TitleCleaner::Cleaned& cleaned, const std::string& host)
{
    SlotView view;
    view.program = program.isNamedBySuffix && !cleaned.suffix.empty() ? cleaned.suffix : program.name;
    view.program = NodeText(view.program, LongestName);
    view.sort = program.sort;
    view.kind = program.kind;
    const auto subject = program.kind == MailKind ? SubjectOf(cleaned.text) : "";
    const auto placed
        = subject.empty() ? PlaceRule::Of(program, cleaned.text, host) : PlaceRule::Placed { subject, subject };
    view.text = NodeText(placed.text, LongestText);
    view.place = NodeText(placed.place, LongestText);
    const bool isDocument = view.kind >= FirstDocumentKind && view.kind < MailKind && !view.text.empty();
    const bool isMail = view.kind == MailKind && !subject.empty();
    if (view.kind >= FirstDocumentKind && view.kind <= MailKind && !isDocument && !isMail) {
        view.kind = 0;
    }
    return view;
}

}
