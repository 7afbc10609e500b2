#pragma once

namespace tempodial {

/// Who chooses the projects of the items that are saved; a project that a person chose is marked as such.
enum class ProjectChoice {
    /// Rules: what they change is no person's choice any more.
    Rules,
    /// A person: what is saved is that person's choice, also when it is the same project as before.
    Person,
    /// Nobody: marks stay as they are, as in an import.
    Nobody,
};

}
