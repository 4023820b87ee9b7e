#include "support/Processes.h"

#include "support/SystemProcesses.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

namespace support {

namespace {

constexpr int kPatience = 120'000; // milliseconds; only a process that hangs takes longer

QString pathOf(const std::string& program) {
    const QString name = QString::fromStdString(program);
    return QDir::isAbsolutePath(name) ? name : QCoreApplication::applicationDirPath() + '/' + name;
}

} // namespace

HelperProcess::HelperProcess(const std::string& program, const std::vector<std::string>& arguments,
                             const std::map<std::string, std::string>& environment) {
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : environment) {
        if (value.empty()) {
            all.remove(QString::fromStdString(name));
        } else {
            all.insert(QString::fromStdString(name), QString::fromStdString(value));
        }
    }
    QStringList list;
    for (const std::string& argument : arguments) {
        list << QString::fromStdString(argument);
    }
    process_.setProcessEnvironment(all);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    startBound(process_, pathOf(program), list);
    if (!process_.waitForStarted(kPatience)) {
        ADD_FAILURE() << program << " doesn't start: " << process_.errorString().toStdString();
    }
}

HelperProcess::~HelperProcess() {
    kill();
}

void HelperProcess::writeLine(const std::string& line) {
    process_.write((line + '\n').c_str());
    while (process_.bytesToWrite() > 0 && process_.waitForBytesWritten(kPatience)) {
    }
}

std::optional<std::string> HelperProcess::readLine() {
    while (!process_.canReadLine() && process_.state() == QProcess::Running) {
        if (!process_.waitForReadyRead(kPatience) && process_.state() == QProcess::Running) {
            ADD_FAILURE() << "The helper process is silent.";
            return std::nullopt;
        }
    }
    if (!process_.canReadLine()) {
        return std::nullopt;
    }
    return process_.readLine().trimmed().toStdString();
}

std::string HelperProcess::readAll() {
    finish();
    return process_.readAllStandardOutput().replace("\r\n", "\n").toStdString();
}

void HelperProcess::freeze() const {
    support::freeze(pid());
}

void HelperProcess::thaw() const {
    support::thaw(pid());
}

bool HelperProcess::isRunning() {
    return process_.state() != QProcess::NotRunning && !process_.waitForFinished(0);
}

void HelperProcess::kill() {
    if (process_.state() == QProcess::NotRunning) {
        return;
    }
    endConnections(pid());
    process_.kill();
    process_.waitForFinished(kPatience);
}

int HelperProcess::finish() {
    process_.closeWriteChannel();
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(kPatience)) {
        ADD_FAILURE() << "The helper process doesn't end.";
        kill();
    }
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

} // namespace support
