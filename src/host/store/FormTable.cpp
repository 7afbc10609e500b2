#include "host/store/FormTable.h"

#include "base/Text.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/PropertyCodec.h"
#include "host/store/Query.h"

namespace tempodial {

FormTable::FormTable(MailboxDatabase& database)
    : mDatabase(database)
{
    Load();
}

void FormTable::Load()
{
    std::unordered_map<std::string, FormTemplate> forms;
    Query query(mDatabase, "SELECT message_class, display_name, fields, page FROM form");
    while (query.Step()) {
        auto messageClass = query.Text(0);
        auto key = Fold(messageClass);
        forms[std::move(key)]
            = { std::move(messageClass), query.Text(1), mDatabase.Properties(query.Text(2)), query.Text(3) };
    }
    mForms = std::move(forms);
}

const FormTemplate* FormTable::Find(std::string_view messageClass) const
{
    const auto known = mForms.find(Fold(messageClass));
    return known == mForms.end() ? nullptr : &known->second;
}

const FormTemplate* FormTable::Nearest(std::string_view messageClass) const
{
    while (true) {
        if (const auto* form = Find(messageClass)) {
            return form;
        }
        const auto dot = messageClass.rfind('.');
        if (dot == std::string_view::npos) {
            return nullptr;
        }
        messageClass = messageClass.substr(0, dot);
    }
}

void FormTable::Publish(const FormTemplate& form)
{
    const auto* known = Find(form.messageClass);
    if (known != nullptr && *known == form) {
        return;
    }
    mDatabase.Atomically([&] {
        if (known != nullptr) {
            Query(mDatabase, "DELETE FROM form WHERE message_class = ?").Bind(known->messageClass).Run();
        }
        Query(mDatabase, "INSERT INTO form (message_class, display_name, fields, page) VALUES (?, ?, ?, ?)")
            .Bind(form.messageClass)
            .Bind(form.displayName)
            .Bind(PropertyCodec::Encode(form.fields))
            .Bind(form.page)
            .Run();
    });
    mForms[Fold(form.messageClass)] = form;
}

}
