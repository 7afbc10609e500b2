#pragma once

#include "engine/foundation/TracedObject.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/Inspector.h"

#include <cstdint>
#include <string>

namespace tempodial {

class CommandBarPopup;
class TempodialMain;

/// Puts the add-in's bar where an inspector's "Standard" bar stood, and back. It keeps nothing of any window. None of
/// its routines passes a failure on.
class TempodialToolbarUtils final : public TracedObject
{
public:
    explicit TempodialToolbarUtils(Ref<const Platform> platform);

    void Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main);
    /// Lets its references go.
    void Terminate();

    /// Removes the inspector's bar of exactly that name, when there is one.
    void RemoveMyToolbar(const Ref<Inspector>& inspector, const std::string& toolbar);
    /// Hides the "Standard" bar and answers a new one under the log's name; nothing when it couldn't be made.
    Ref<CommandBar> ReplaceStandardToolbar(const Ref<Inspector>& inspector, const std::string& toolbar);
    /// The "Standard" bar, nothing when there is none.
    Ref<CommandBar> GetStandardToolBar(const Ref<Inspector>& inspector);
    /// Shows the "Standard" bar when it is hidden.
    void EnableStandardToolBar(const Ref<Inspector>& inspector);

private:
    friend class TempodialToolbarUtilsTest;

    /// Hides or shows the control of an id on a menu; the id 0 traces the menu's captions and ids instead. kept: no
    /// other routine calls it, it stands ready.
    void ChangeMenu(bool hide, const Ref<CommandBarPopup>& popup, std::int32_t id);

    Ref<TempodialMain> mMain;
};

}
