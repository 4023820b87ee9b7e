#pragma once

#include <QProcess>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// A process that a test exchanges lines with. It ends with this object at the latest.
class HelperProcess {
public:
    /// `program` is the name of an executable of this build, or an absolute path. `environment` is added to the test's
    /// own; an empty value removes a variable. Fails the test where the process doesn't start.
    explicit HelperProcess(const std::string& program, const std::vector<std::string>& arguments = {},
                           const std::map<std::string, std::string>& environment = {});
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    ~HelperProcess();

    long long pid() const { return process_.processId(); }
    void writeLine(const std::string& line);
    /// The next line of its output; nothing where it ended without one. Fails the test where none comes in half a
    /// minute.
    std::optional<std::string> readLine();
    /// All its output up to its end, with lines that end in a line feed.
    std::string readAll();
    bool isRunning();
    /// Kills the process and waits for its end.
    void kill();
    /// Stops the process, and lets it continue.
    void freeze() const;
    void thaw() const;
    /// Asks the process to end, which is heard by a program with windows alone where programs can't be sent a signal.
    void terminate() { process_.terminate(); }
    /// Closes its input and waits for its end. Returns the exit code, -1 where it was killed or crashed.
    int finish();

private:
    QProcess process_;
};

} // namespace support
