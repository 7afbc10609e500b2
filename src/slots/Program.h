#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What a program is for.
enum class ProgramSort {
    Other,
    Browser,
    Office,
    Mail,
    Reader,
    Editor,
    Terminal,
    Files,
    Chat,
    Meeting,
    Player,
    Lock,
    Shell
};

/// Where a program's title says where one is.
enum class PlaceForm {
    /// The whole title is the place.
    Document,
    /// A page, and in its last part the site.
    Page,
    /// A file, and behind it the project or the folder.
    FileInProject,
    /// A project, and behind it the file.
    ProjectWithFile,
    /// Host and directory, or the program that runs.
    Directory,
    /// A room, and behind it the workspace.
    Room,
    /// Nothing but a person's or a group's name.
    Person,
    /// A subject or a folder, with the account's address.
    Mail,
};

/// A program as the table has it.
struct Program
{
    /// What it is known by, in lower case; one that ends in a star stands for all that begin alike.
    std::vector<std::string> ids;
    /// What the log calls it.
    std::string name;
    ProgramSort sort = ProgramSort::Other;
    PlaceForm place = PlaceForm::Document;
    /// The tracker's index of it, 0 for one that has none.
    int kind = 0;
    /// What its titles end in and isn't worth saying; one that ends in a star stands for all that begin alike.
    std::vector<std::string> suffixes;
    /// True when the suffix of a title is the program's name there.
    bool isNamedBySuffix = false;
    /// Titles of windows that stand for nothing.
    std::vector<std::string> emptyTitles;
    /// True when the names of the people that one talks to may be told.
    bool namesPeople = false;
    /// True for one that no table has.
    bool isUnknown = false;
};

/// Seconds without input that a program of this sort is taken to be in use all the same.
constexpr std::int64_t IdleLimit(ProgramSort sort)
{
    constexpr std::int64_t Minute = 60;
    switch (sort) {
    case ProgramSort::Meeting:
        return 90 * Minute;
    case ProgramSort::Reader:
        return 10 * Minute;
    default:
        return 3 * Minute;
    }
}

}
