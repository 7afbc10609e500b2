#include "OwnProcess.h"

#include <QProcess>

namespace tempodial {

OwnProcess::OwnProcess(const char* filter, const char* variable, const char* value)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable, value);
    for (const auto* shard : { "GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX", "GTEST_OUTPUT" }) {
        environment.remove(shard);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start("/proc/self/exe", { QString("--gtest_filter=") + filter });
    constexpr int Long = 300000;
    mIsDone = process.waitForFinished(Long) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    mSaid = process.readAllStandardOutput().toStdString();
}

}
