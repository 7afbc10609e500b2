#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/Views.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

class MailboxStore;

/// A view of a folder of the mailbox; it fails (-2147221233) once it is deleted. A definition that was set stands in
/// this object alone until it is saved.
class StoreView final : public View
{
public:
    StoreView(Ref<MailboxStore> store, std::int64_t folder, std::string name);

    std::string Name() const override;
    tempodial::ViewType ViewType() const override;
    std::string XML() const override;
    void SetXML(const std::string& xml) override;
    void Save() override;

private:
    Ref<MailboxStore> mStore;
    std::int64_t mFolder;
    std::string mName;
    std::optional<std::string> mUnsavedXml;
};

}
