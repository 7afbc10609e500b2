// The least that an import has to do: the tracker's files of a folder are parsed line by line, activities classified by
// one word for each project and stored, a transaction a day, a trace of the given size written beside, in blocks and in
// single lines, finished days renamed, and the history file written anew.

#include "floors/SlotReader.h"
#include "floors/Table.h"
#include "floors/TraceFile.h"
#include "workload/Projects.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

using tempodial::Projects;
using tempodial::SlotReader;
using tempodial::Table;
using tempodial::TraceFile;

namespace {

constexpr auto Schema
    = "CREATE TABLE item (id INTEGER PRIMARY KEY, folder INTEGER, class TEXT, starts INTEGER, "
      "ends INTEGER, subject TEXT, project TEXT, description TEXT, properties TEXT, body TEXT);"
      "CREATE INDEX item_start ON item (folder, starts); CREATE INDEX item_end ON item (folder, ends)";
constexpr auto Insert = "INSERT INTO item (id, folder, class, starts, ends, subject, project, description, properties, "
                        "body) VALUES (?, 1, 'IPM.Appointment.TDActivity1', ?, ?, ?, ?, ?, ?, ?)";

/// The item that lines are about.
struct Item
{
    std::int64_t row = 0;
    std::int64_t starts = 0;
    std::int64_t ends = 0;
    std::string subject, project, description, properties, body;
};

/// The import of a folder.
class Import
{
public:
    Import(const std::string& folder, std::int64_t lines, TraceFile& trace)
        : mFolder(folder)
        , mTrace(trace)
        , mLines(lines)
        , mDatabase(Table::Open(folder + "/floor.db"))
        , mInsert(mDatabase, Insert)
        , mStretch(mDatabase, "UPDATE item SET ends = ?, properties = ? WHERE id = ?")
        , mDetail(mDatabase, "UPDATE item SET subject = ?, project = ?, properties = ?, body = ? WHERE id = ?")
    {
        for (std::size_t number = 0; number < Projects::Usual; ++number) {
            mRules.push_back(Projects::Rule(number));
        }
    }

    void Run()
    {
        std::vector<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(mFolder)) {
            if (entry.path().filename().string().starts_with("tracker_granules2")) {
                files.push_back(entry.path().string());
            }
        }
        std::sort(files.rbegin(), files.rend());
        for (const auto& file : files) {
            Load(file);
            if (file != files.front()) {
                auto done = file;
                done.insert(done.rfind("granules") + 8, "(done)");
                std::filesystem::rename(file, done);
            }
        }
        mTrace.Finish();
        SaveHistory();
    }
    sqlite3* Database() const { return mDatabase; }

private:
    void Load(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        std::string line;
        std::getline(file, line);
        Table::Execute(mDatabase, "BEGIN IMMEDIATE");
        while (std::getline(file, line)) {
            if (mReader.Read(line)) {
                Take();
            }
            mTrace.Advance(++mDone, mLines);
        }
        Table::Execute(mDatabase, "COMMIT");
    }

    void Take()
    {
        const auto ends = mReader.Number("EndTime");
        if (!mReader.Text("Continuation").empty()) {
            mItem.ends = ends;
            WriteProperties();
            mStretch.Bind(mItem.ends).Bind(mItem.properties).Bind(mItem.row).Run();
            return;
        }
        const bool isDetail = !mReader.Text("Detail").empty();
        const auto mail = mReader.Text("OutlookSubject");
        const std::string caption(mail.empty() ? mReader.Text("WindowText") : mail);
        Classify(caption);
        mItem.description = "\"" + caption + "\"";
        mItem.subject = "[" + mItem.project + "] " + mItem.description;
        WriteProperties();
        if (isDetail) {
            mItem.body += mItem.description + "\r\n";
            mDetail.Bind(mItem.subject)
                .Bind(mItem.project)
                .Bind(mItem.properties)
                .Bind(mItem.body)
                .Bind(mItem.row)
                .Run();
            return;
        }
        ++mItem.row;
        mItem.starts = mReader.Number("StartTime");
        mItem.ends = ends;
        mItem.body.clear();
        mInsert.Bind(mItem.row).Bind(mItem.starts).Bind(mItem.ends).Bind(mItem.subject).Bind(mItem.project);
        mInsert.Bind(mItem.description).Bind(mItem.properties).Bind(mItem.body).Run();
    }

    void Classify(const std::string& caption)
    {
        mFolded = caption;
        for (auto& letter : mFolded) {
            letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        }
        const auto found = std::find_if(
            mRules.begin(), mRules.end(), [&](const auto& rule) { return mFolded.find(rule) != std::string::npos; });
        mItem.project = found == mRules.end() ? "No Project" : *found;
    }

    void WriteProperties()
    {
        mItem.properties = R"({"Type":[1,")";
        mItem.properties.append(mReader.Text("AppType")).append(R"("],"Project":[1,")").append(mItem.project);
        mItem.properties.append(R"("],"Description":[1,"\)").append(mItem.description).append(R"("],"People":[1,")");
        mItem.properties.append(mReader.Text("OutlookFrom"))
            .append(R"("],"Day":[5,3907180800],"StartTime":[1,"10:00"],)");
        mItem.properties.append(R"("Keyword":[1,"<word or phrase to match an activity to this project>"]})");
    }

    void SaveHistory() const
    {
        const auto path = mFolder + "/FloorHistory.out";
        const auto file = ::open((path + ".new").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const std::string_view text = "20250630_80100";
        const bool written = ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
        if (!written || ::fsync(file) != 0) {
            throw std::runtime_error("the history can't be written");
        }
        ::close(file);
        std::filesystem::rename(path + ".new", path);
        const auto folder = ::open(mFolder.c_str(), O_RDONLY | O_DIRECTORY);
        ::fsync(folder);
        ::close(folder);
    }

    std::string mFolder;
    TraceFile& mTrace;
    std::int64_t mLines;
    std::int64_t mDone = 0;
    std::vector<std::string> mRules;
    SlotReader mReader;
    Item mItem;
    std::string mFolded;
    sqlite3* mDatabase;
    Table mInsert, mStretch, mDetail;
};

}

int main(int count, char** arguments)
{
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        if (words.size() == 2 && words[1] == "prepare") {
            auto* database = Table::Open(words[0] + "/floor.db");
            Table::Execute(database, Schema);
            sqlite3_close(database);
            return 0;
        }
        if (words.size() != 6) {
            std::cerr << "usage: floor-import FOLDER prepare\n"
                         "       floor-import FOLDER LINES TRACELINES TRACEBYTES SINGLELINES SINGLEBYTES\n";
            return 2;
        }
        TraceFile(words[0], std::stoll(words[4]), std::stoll(words[5]), false).Finish();
        TraceFile trace(words[0], std::stoll(words[2]), std::stoll(words[3]), true);
        sqlite3* database = nullptr;
        {
            Import import(words[0], std::stoll(words[1]), trace);
            import.Run();
            database = import.Database();
        }
        sqlite3_close(database);
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "floor-import: " << problem.what() << '\n';
        return 1;
    }
}
