#include "provision/PointerFiles.h"

#include "provision/Folders.h"
#include "provision/Provision.h"

namespace provision {

std::vector<PointerFile> pointerFiles(std::string_view server) {
    const std::string name(server);
    const std::string driver = "Driver=SQL Server;Server=" + name + ";";
    const std::string remote =
        driver + "UID=" + std::string(kServerUser) + ";PWD=" + std::string(kServerPassword) + ";";
    const std::string local = driver + "ID utente=;Password=;";
    const std::string folder(folders::kServer);
    return {
        {"C:\\vabo\\IndirizzoServer.txt", remote},
        {"C:\\vabo\\NomeServer.txt", name},
        {"C:\\vabo\\Leggi_ServerLocal.txt", local},
        {"C:\\vabo\\NomeServerLocal.txt", name},
        {"C:\\vabo\\IndirizzoServerLocal.txt", local},
        {"C:\\vabo\\DirectorySede.txt", folder},
        {"C:\\vabo\\IndirizzoVabo.txt", folder + "\\InstallazioneLoco"},
        {"C:\\vabo\\IndirizzoVaboinstalla.txt", folder + "\\InstallazioneLoco\\vabo"},
        {"C:\\vabo\\IndirizzoVabodati.txt", folder + "\\VaBoDati"},
        {"C:\\vabo\\DirectoryHq.txt", folder + "\\VaBoDatiHQ"},
        {"C:\\vabo\\IndirizzoServerVabo.txt", folder},
        {"C:\\vabo\\DirectoryBackup.txt", folder + "\\Backup"},
    };
}

} // namespace provision
