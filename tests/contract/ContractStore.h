#pragma once

#include "base/Ref.h"
#include "host/store/FormTemplate.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/NameSpace.h"
#include "platform/system/LocaleFormats.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace tempodial {

/// A store to be held against the contract, and what its user can do to it from outside of the object model.
class ContractStore
{
public:
    virtual ~ContractStore() = default;

    virtual Ref<NameSpace> Session() = 0;
    /// The forms in which its filters take dates.
    virtual Ref<LocaleFormats> Formats() = 0;
    /// Lets the store tell of what has arrived.
    virtual void DeliverEvents() = 0;
    virtual void RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name) = 0;
    virtual void MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent) = 0;
    virtual void DeleteFolder(const Ref<MAPIFolder>& folder) = 0;
    /// A new unsaved item made from a form template.
    virtual Ref<AppointmentItem> NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form) = 0;
};

/// Makes one kind of store, new and empty.
struct ContractStoreFactory
{
    std::string name;
    std::function<std::unique_ptr<ContractStore>()> make;

    friend std::ostream& operator<<(std::ostream& stream, const ContractStoreFactory& factory)
    {
        return stream << factory.name;
    }
};

}
