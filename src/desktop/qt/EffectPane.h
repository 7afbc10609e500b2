#pragma once

#include "desktop/RuleEffect.h"
#include "desktop/RuleForm.h"
#include "desktop/qt/Desk.h"

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QBoxLayout;
class QLabel;
class QSpinBox;
class QTreeView;

namespace tempodial {

class EffectModel;

/// What the rules in the form of the project settings would change, beside the form and before anything is saved; and
/// the words of what is selected, to be put into the rule.
class EffectPane final : public QWidget
{
public:
    /// Doesn't hold the form, which goes with its owner.
    EffectPane(Desk& desk, const Ref<FormModel>& form, QWidget* parent);

    /// A person has done something, or the log has changed.
    void Follow();
    /// What is shown; nothing before the form was.
    const std::optional<RuleEffect>& Effect() const { return mEffect; }
    QTreeView& List() { return *mList; }
    /// For how many days it is told what would change, as long as the form applies nothing back.
    QSpinBox& Days() { return *mDays; }

private:
    /// What the effect was found by.
    struct Basis
    {
        RuleEdit edit;
        std::string projects;
        std::set<std::int64_t> open;
        std::int64_t log = 0;
        Date today;

        bool operator==(const Basis&) const = default;
    };

    /// What stands in the form, over the days that are looked at.
    RuleEdit Edit();
    Basis Now();
    void GoOn();
    void Read();
    void ShowWords();
    void FollowOffers();
    void AddTerm(const std::string& term);

    Desk& mDesk;
    std::int32_t mNumber;
    RuleForm mForm;
    QSpinBox* mDays;
    QLabel* mTitle;
    QLabel* mNotes;
    QTreeView* mList;
    EffectModel* mModel;
    QWidget* mOffers;
    QBoxLayout* mOfferLine = nullptr;
    std::vector<std::string> mOffered;
    QTimer mTimer;
    std::optional<Basis> mBasis;
    std::optional<RuleEffect> mEffect;
};

}
