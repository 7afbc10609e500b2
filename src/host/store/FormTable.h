#pragma once

#include "host/store/FormTemplate.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace tempodial {

class MailboxDatabase;

/// The forms published in a mailbox, held in memory as well as in the file.
class FormTable
{
public:
    explicit FormTable(MailboxDatabase& database);

    /// Reads all forms from the file anew.
    void Load();
    /// The form published under a message class, case ignored; null when there is none.
    const FormTemplate* Find(std::string_view messageClass) const;
    /// The form published under a message class, or under the nearest that it derives from; null when there is none.
    const FormTemplate* Nearest(std::string_view messageClass) const;
    /// Makes a form known, replacing one of the same message class; one that is known already isn't written again.
    void Publish(const FormTemplate& form);

private:
    MailboxDatabase& mDatabase;
    std::unordered_map<std::string, FormTemplate> mForms;
};

}
