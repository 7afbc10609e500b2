#include "support/TrackedDesktop.h"

#include "support/ObservedWork.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// Pipes that keep what is told while nobody reads.
int OpenedPipe(const std::string& path)
{
    if (::mkfifo(path.c_str(), S_IRUSR | S_IWUSR) != 0) {
        throw std::runtime_error("no pipe");
    }
    return ::open(path.c_str(), O_RDWR | O_CLOEXEC);
}

void TellPipe(int pipe, const std::string& line)
{
    const auto text = line + "\n";
    if (::write(pipe, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        throw std::runtime_error("nothing can be told");
    }
}

std::vector<char*> WordPointers(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    for (auto& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

}

TrackedDesktop::TrackedDesktop()
{
    // The programs look for their modules beside their own folder.
    const auto tree = mFolder.Path("tree");
    const auto build = fs::path(TEMPODIAL_EXECUTABLE).parent_path().parent_path();
    fs::create_directories(tree + "/bin");
    fs::create_directories(tree + "/lib/tempodial");
    fs::create_directories(tree + "/share");
    for (const auto* program : { "tempodial", "tempodial-track" }) {
        fs::copy_file(build / "bin" / program, tree + "/bin/" + program);
    }
    fs::create_directory_symlink(build / "share/tempodial", tree + "/share/tempodial");
    for (const auto& module : fs::directory_iterator(build / "lib/tempodial")) {
        if (module.path().filename().string().find("-track-") == std::string::npos) {
            fs::create_symlink(module.path(), tree + "/lib/tempodial/" + module.path().filename().string());
        }
    }
    for (const auto* name : { "x11", "session" }) {
        fs::create_symlink(build / "tests/fake-desktop.so", tree + "/lib/tempodial/tempodial-track-" + name + ".so");
    }
    fs::create_directory(mFolder.Path("runtime"));
    mDesktop = OpenedPipe(mFolder.Path("desktop"));
    mSession = OpenedPipe(mFolder.Path("session"));
}

TrackedDesktop::~TrackedDesktop()
{
    if (mProcess > 0) {
        Stop(SIGKILL);
    }
    ::close(mDesktop);
    ::close(mSession);
}

std::vector<std::string> TrackedDesktop::Environment() const
{
    auto environment = UsualEnvironment();
    for (const auto& value : { "FAKE_DESKTOP=" + mFolder.Path("desktop"), "FAKE_SESSION=" + mFolder.Path("session"),
             "XDG_RUNTIME_DIR=" + mFolder.Path("runtime"), "XDG_CONFIG_HOME=" + mFolder.Path("config") }) {
        environment.push_back(value);
    }
    return environment;
}

ProgramResult TrackedDesktop::RunIn(
    const std::vector<std::string>& environment, const std::vector<std::string>& arguments) const
{
    std::vector<std::string> words { "--profile", Profile() };
    words.insert(words.end(), arguments.begin(), arguments.end());
    return RunTempodialIn({ .executable = Executable() }, words, environment);
}

void TrackedDesktop::StartIn(std::vector<std::string> environment, const std::vector<std::string>& arguments,
    const std::vector<std::string>& wrapper)
{
    auto words = wrapper;
    words.insert(words.end(), { Executable(), "--profile", Profile(), "track" });
    words.insert(words.end(), arguments.begin(), arguments.end());
    mProcess = ::fork();
    if (mProcess == 0) {
        const int messages = ::open(mFolder.Path("messages").c_str(), O_WRONLY | O_CREAT | O_APPEND, S_IRUSR | S_IWUSR);
        ::dup2(messages, STDOUT_FILENO);
        ::dup2(messages, STDERR_FILENO);
        ::execvpe(words.front().c_str(), WordPointers(words).data(), WordPointers(environment).data());
        ::_exit(126);
    }
    WaitUntil([this] { return Run({ "track", "status", "--json" }).out.find("true") != std::string::npos; });
}

int TrackedDesktop::Stop(int signal)
{
    ::kill(mProcess, signal);
    return WaitForEnd();
}

int TrackedDesktop::WaitForEnd()
{
    int wait = 0;
    ::waitpid(mProcess, &wait, 0);
    mProcess = 0;
    return WIFEXITED(wait) ? WEXITSTATUS(wait) : 128 + WTERMSIG(wait);
}

void TrackedDesktop::Tell(const std::string& line) const
{
    TellPipe(mDesktop, line);
}

void TrackedDesktop::TellSession(const std::string& line) const
{
    TellPipe(mSession, line);
}

bool TrackedDesktop::WaitUntil(const std::function<bool()>& isSo, std::chrono::seconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

}
