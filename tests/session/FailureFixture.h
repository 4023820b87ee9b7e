#pragma once

#include "state/variabili.h"
#include "support/CutWire.h"
#include "support/SilentServer.h"
#include "support/TestWorkstation.h"

#include <QString>

#include <filesystem>
#include <map>
#include <memory>
#include <ostream>
#include <string>

namespace vabo {

/// The kinds of failure of the connection to the server.
enum class Failure { Ended, Frozen, Silent, WrongPort, WrongPassword };

inline constexpr Failure kFailures[] = {Failure::Ended, Failure::Frozen, Failure::Silent, Failure::WrongPort,
                                        Failure::WrongPassword};

inline const char* nameOf(Failure failure) {
    static constexpr const char* kNames[] = {"Ended", "Frozen", "Silent", "WrongPort", "WrongPassword"};
    return kNames[static_cast<int>(failure)];
}

inline std::ostream& operator<<(std::ostream& out, Failure failure) {
    return out << nameOf(failure);
}

inline constexpr const char* kOutOfReach = "Server does not exist or access denied.";
/// The errors of a connection whose server was lost, and of one whose server didn't answer in time.
inline constexpr const char* kLinkFailure = "Communication link failure";
inline constexpr const char* kTimedOut = "Timeout expired";

/// The error's description that the user sees.
inline const char* descriptionOf(Failure failure) {
    return failure == Failure::WrongPassword ? "Login failed for user 'sa'." : kOutOfReach;
}

/// Breaks and repairs the server behind the wire of a test's workstation. Its time-out is one second.
class FailingServer {
public:
    explicit FailingServer(const support::TestWorkstation& workstation) : workstation_(workstation) {
        replace("Server=", "Connect Timeout=1;Server=");
        before_.clear();
    }

    void fail(Failure failure) {
        const QString server = QString::fromStdString(workstation_.serverName());
        switch (failure) {
        case Failure::Ended:
            workstation_.peer().kill();
            break;
        case Failure::Frozen:
            workstation_.peer().freeze();
            break;
        case Failure::Silent:
            replace(server, QString::fromStdString(silent.server()));
            break;
        case Failure::WrongPort:
            replace(server, "127.0.0.1,9");
            break;
        case Failure::WrongPassword:
            replace("PWD=", "PWD=x");
            break;
        }
        failure_ = failure;
    }

    void repair() {
        if (failure_ == Failure::Ended) {
            workstation_.peer().restart();
        }
        if (failure_ == Failure::Frozen) {
            workstation_.peer().thaw();
        }
        for (const auto& [file, text] : before_) {
            workstation_.putFile(file, text);
        }
        before_.clear();
    }

    /// Every pointer file with its text.
    std::map<std::string, std::string> pointerFiles() const {
        std::map<std::string, std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(workstation_.driveC().real("C:\\vabo"))) {
            const std::string name = entry.path().filename().string();
            if (entry.is_regular_file()) {
                all[name] = *workstation_.fileText("C:\\vabo\\" + name);
            }
        }
        return all;
    }

    /// Puts a CutWire between the program and its server, for as long as the result lives.
    std::unique_ptr<support::CutWire> wire() {
        auto wire = std::make_unique<support::CutWire>(workstation_.peer().port());
        replace(QString::fromStdString(workstation_.serverName()), QString::fromStdString(wire->server()));
        return wire;
    }

    support::SilentServer silent;

private:
    /// Replaces a part of the connection texts of both servers; the repair restores it.
    void replace(const QString& from, const QString& to) {
        for (const char* file : {"C:\\vabo\\IndirizzoServer.txt", "C:\\vabo\\Leggi_ServerLocal.txt"}) {
            const std::string text = *workstation_.fileText(file);
            before_.emplace(file, text);
            workstation_.putFile(file, QString::fromStdString(text).replace(from, to).toStdString());
        }
    }

    const support::TestWorkstation& workstation_;
    Failure failure_ = Failure::Silent;
    std::map<std::string, std::string> before_;
};

/// The name of each test that is parameterised by a failure.
inline const auto kNameOfFailure = [](const auto& info) { return std::string(nameOf(info.param)); };

} // namespace vabo
