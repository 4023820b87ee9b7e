#pragma once

#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vabo {

/// The pointer files of the folder on the server, in the order of their writing, with their bytes.
using Puntatori = std::vector<std::pair<std::string, std::string>>;

inline Puntatori puntatoriDi(const std::string& cartella) {
    return {{"DirectorySede.txt", cartella + "\r\n"},
            {"IndirizzoVabo.txt", cartella + "\\InstallazioneLoco\r\n"},
            {"IndirizzoVaboinstalla.txt", cartella + "\\InstallazioneLoco\\vabo\r\n"},
            {"IndirizzoVabodati.txt", cartella + "\\VaBoDati\r\n"},
            {"DirectoryHq.txt", cartella + "\\VaBoDatiHQ\r\n"},
            {"IndirizzoServerVabo.txt", cartella + "\r\n"},
            {"DirectoryBackup.txt", cartella + "\\Backup\r\n"}};
}

/// As they are on the disk; what is missing or no file is empty.
inline Puntatori puntatori(const support::TestWorkstation& posto) {
    Puntatori tutti = puntatoriDi("");
    for (auto& [nome, testo] : tutti) {
        const std::string file = "C:\\vabo\\" + nome;
        testo = posto.driveC().isFile(file) ? posto.fileText(file).value_or("") : "";
    }
    return tutti;
}

inline void metti(const support::TestWorkstation& posto, const Puntatori& tutti) {
    for (const auto& [nome, testo] : tutti) {
        posto.putFile("C:\\vabo\\" + nome, testo);
    }
}

/// Makes one of them impossible to write.
inline void impedisci(const support::TestWorkstation& posto, const std::string& nome) {
    posto.removeFile("C:\\vabo\\" + nome);
    posto.driveC().makeFolder("C:\\vabo\\" + nome);
}

} // namespace vabo
