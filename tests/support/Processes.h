#pragma once

#include <QProcess>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// Another process for a test to talk with, line by line. It never outlives the object.
class HelperProcess {
public:
    /// `program` is an executable of this build, by its name, or a path. `environment` is added to the test's own; an
    /// empty value takes a variable away. Fails the test when it doesn't start.
    explicit HelperProcess(const std::string& program, const std::vector<std::string>& arguments = {},
                           const std::map<std::string, std::string>& environment = {});
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    ~HelperProcess();

    long long pid() const { return process_.processId(); }
    void writeLine(const std::string& line);
    /// The next line of its output; nothing when it ended without one. Fails the test when none comes in half a minute.
    std::optional<std::string> readLine();
    std::string readAll();
    /// At once, as a power cut would end it, and reaped.
    void kill();
    /// Closes its input and waits. The exit code; -1 when it was killed or crashed.
    int finish();

private:
    QProcess process_;
};

} // namespace support
