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

/// What befalls the way to the server.
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
/// What a connection says whose server has gone meanwhile, and what one that waited in vain for an answer.
inline constexpr const char* kCaduto = "Communication link failure";
inline constexpr const char* kMuto = "Timeout expired";

/// What the user is told of it where the error's own description is shown.
inline const char* Descrizione(Guasto guasto) {
    return guasto == Guasto::PasswordSbagliata ? "Login failed for user 'sa'." : kIrraggiungibile;
}

/// The server behind the wire of a test's workstation, to be broken and put right. Whoever waits for it gives up after
/// one second.
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

    /// Every pointer file with what is in it.
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

    /// Between the program and its server from here on, for as long as it lives.
    std::unique_ptr<support::CutWire> filo() {
        auto filo = std::make_unique<support::CutWire>(posto_.peer().port());
        cambia(QString::fromStdString(posto_.serverName()), QString::fromStdString(filo->server()));
        return filo;
    }

    support::SilentServer muto;

private:
    /// In the texts of both servers, and back again when it is put right.
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

/// The name of each test of a family of failures.
inline const auto kNomeDelGuasto = [](const auto& info) { return std::string(Nome(info.param)); };

} // namespace vabo
