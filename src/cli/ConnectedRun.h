#pragma once

#include "cli/Options.h"
#include "cli/PrintingMessageBox.h"
#include "cli/Reply.h"
#include "engine/core/TempodialMain.h"
#include "faults/Problems.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreImportJournal.h"
#include "platform/system/MailDraft.h"
#include "session/OpenProfile.h"
#include "session/Session.h"

#include <cstddef>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace tempodial {

/// A command's work through the add-in: the profile is opened, the add-in connected, and what goes wrong is noted.
class ConnectedRun
{
public:
    /// Fails with `ProfileInUse` or `ProfileError`, also when the program isn't installed as a whole.
    explicit ConnectedRun(const Options& options);
    /// Disconnects the add-in, and prints its messages unless they may not be told.
    ~ConnectedRun();
    ConnectedRun(const ConnectedRun&) = delete;
    ConnectedRun& operator=(const ConnectedRun&) = delete;

    /// The add-in's own members.
    TempodialMain& AddIn() const { return mSession.AddIn(); }
    /// The profile.
    const tempodial::Profile& Profile() const { return mSession.Profile(); }
    /// The surroundings of the profile.
    const Platform& Host() const { return mSession.Profile().Surroundings(); }
    std::string DataFolder() const { return mSession.Profile().DataFolder(); }
    /// The path of a file in the data folder.
    std::string DataPath(const std::string& name) const { return tempodial::DataPath(mSession.Profile(), name); }
    /// The mail that the add-in put on the screen, taken from there, empty when there is none. What couldn't be
    /// attached goes wrong.
    MailDraft TakeShownMail() const;
    /// The lines that the import couldn't read, of those that it reached first.
    const std::vector<StoreImportJournal::UnreadLine>& UnreadLines() const
    {
        return mSession.Profile().Journal()->Unread();
    }
    /// Where tracker files were kept that were too old.
    const std::vector<std::string>& KeptFiles() const { return mSession.KeptFiles(); }
    /// What was saved since the add-in was connected.
    const SaveStatistics& Saves() const { return mSession.Mailbox()->Statistics(); }
    /// True when the add-in showed a message, as it does when it can't make activities.
    bool WasAddInRefusing() const { return mMessageBox->HasShown(); }
    /// Notes something that went wrong, with what to do about it.
    void Complain(const std::string& message) { mProblems->Note(message); }
    /// True when something went wrong with the file of that path.
    bool HasProblemWith(const std::string& path) const { return mProblems->HasOneWith(path); }
    /// Does work as one step of the log, by the name of the command. A failure undoes all of it and goes wrong.
    void AsStep(const std::function<void()>& work);
    /// Does work whose imports are one step of the log by the name of the command, as far as they take days of which
    /// that is said.
    void AsImportStep(
        const std::function<bool(const std::string& dayKey)>& belongs, const std::function<void()>& work) const;
    /// Connects the add-in anew, which looks for old files then as whenever it starts.
    void Reconnect(const Options& options);
    /// Selects items in the window, as a person does.
    void Select(std::vector<Ref<OutlookItem>> items) const;
    /// Disconnects the add-in, and adds to a reply what went wrong in the run and the status that follows from it.
    /// Fails with `Failure` when nothing may be answered, since a read met damage or a failing disk, or memory was
    /// wanting.
    Reply Concluded(Reply reply);
    /// The same for a reply that tells how many activities came to another project.
    Reply ConcludedWithChanges(std::size_t changed);

private:
    Platform Surroundings(const Options& options) const;
    void PrintMessages();

    std::string mCommand;
    Session mSession;
    Ref<Problems> mProblems = MakeRef<Problems>();
    std::ostringstream mMessages;
    Ref<PrintingMessageBox> mMessageBox = MakeRef<PrintingMessageBox>(mMessages);
};

}
