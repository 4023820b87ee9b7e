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
enum class Guasto { Spento, Gelato, Muto, PortaSbagliata, PasswordSbagliata };

inline constexpr Guasto kGuasti[] = {Guasto::Spento, Guasto::Gelato, Guasto::Muto, Guasto::PortaSbagliata,
                                     Guasto::PasswordSbagliata};

inline const char* Nome(Guasto guasto) {
    static constexpr const char* kNomi[] = {"Spento", "Gelato", "Muto", "PortaSbagliata", "PasswordSbagliata"};
    return kNomi[static_cast<int>(guasto)];
}

inline std::ostream& operator<<(std::ostream& out, Guasto guasto) {
    return out << Nome(guasto);
}

inline constexpr const char* kIrraggiungibile = "Server does not exist or access denied.";
/// The errors of a connection whose server was lost, and of one whose server didn't answer in time.
inline constexpr const char* kCaduto = "Communication link failure";
inline constexpr const char* kMuto = "Timeout expired";

/// The error's description that the user sees.
inline const char* Descrizione(Guasto guasto) {
    return guasto == Guasto::PasswordSbagliata ? "Login failed for user 'sa'." : kIrraggiungibile;
}

/// Breaks and repairs the server behind the wire of a test's workstation. Its time-out is one second.
class ServerGuasto {
public:
    explicit ServerGuasto(const support::TestWorkstation& posto) : posto_(posto) {
        cambia("Server=", "Connect Timeout=1;Server=");
        prima_.clear();
    }

    void avviene(Guasto guasto) {
        const QString server = QString::fromStdString(posto_.serverName());
        switch (guasto) {
        case Guasto::Spento:
            posto_.peer().kill();
            break;
        case Guasto::Gelato:
            posto_.peer().freeze();
            break;
        case Guasto::Muto:
            cambia(server, QString::fromStdString(muto.server()));
            break;
        case Guasto::PortaSbagliata:
            cambia(server, "127.0.0.1,9");
            break;
        case Guasto::PasswordSbagliata:
            cambia("PWD=", "PWD=x");
            break;
        }
        guasto_ = guasto;
    }

    void ripara() {
        if (guasto_ == Guasto::Spento) {
            posto_.peer().restart();
        }
        if (guasto_ == Guasto::Gelato) {
            posto_.peer().thaw();
        }
        for (const auto& [file, testo] : prima_) {
            posto_.putFile(file, testo);
        }
        prima_.clear();
    }

    /// Every pointer file with its text.
    std::map<std::string, std::string> puntatori() const {
        std::map<std::string, std::string> tutti;
        for (const auto& voce : std::filesystem::directory_iterator(posto_.driveC().real("C:\\vabo"))) {
            const std::string nome = voce.path().filename().string();
            if (voce.is_regular_file()) {
                tutti[nome] = *posto_.fileText("C:\\vabo\\" + nome);
            }
        }
        return tutti;
    }

    /// Puts a CutWire between the program and its server, for as long as the result lives.
    std::unique_ptr<support::CutWire> filo() {
        auto filo = std::make_unique<support::CutWire>(posto_.peer().port());
        cambia(QString::fromStdString(posto_.serverName()), QString::fromStdString(filo->server()));
        return filo;
    }

    support::SilentServer muto;

private:
    /// Replaces a part of the connection texts of both servers; the repair restores it.
    void cambia(const QString& da, const QString& a) {
        for (const char* file : {"C:\\vabo\\IndirizzoServer.txt", "C:\\vabo\\Leggi_ServerLocal.txt"}) {
            const std::string testo = *posto_.fileText(file);
            prima_.emplace(file, testo);
            posto_.putFile(file, QString::fromStdString(testo).replace(da, a).toStdString());
        }
    }

    const support::TestWorkstation& posto_;
    Guasto guasto_ = Guasto::Muto;
    std::map<std::string, std::string> prima_;
};

/// The name of each test that is parameterised by a failure.
inline const auto kNomeDelGuasto = [](const auto& info) { return std::string(Nome(info.param)); };

} // namespace vabo
