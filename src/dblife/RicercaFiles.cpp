#include "dblife/RicercaFiles.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Dialogs.h"
#include "platform/FileSearch.h"
#include "platform/Workstation.h"
#include "state/variabili.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace vabo {

namespace {

/// Lets the windows be painted some twenty times a second. What the user does meanwhile waits.
class Respiro {
public:
    void operator()() {
        constexpr qint64 kMillisecondi = 50;
        if (!ultimo_.isValid() || ultimo_.hasExpired(kMillisecondi)) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            ultimo_.start();
        }
    }

private:
    QElapsedTimer ultimo_;
};

/// Drive C is the only fixed disk.
std::string CercaSuiDischi(const std::string& nome) {
    Respiro respiro;
    const auto percorso = platform::findFile(platform::workstation().driveC, nome, [&] { respiro(); });
    if (!percorso) {
        platform::dialogs().message("There were no files found.");
    }
    return percorso.value_or("");
}

std::string FinoAllUltimaBarra(const std::string& percorso) {
    return percorso.substr(0, percorso.rfind('\\') + 1);
}

} // namespace

// Without a rule of its own.
void CercaDirectorySede(std::string& Cartella) {
    ado::Recordset rs;
    ApriScrivibile(rs, "Select * from DirectorySede", DbAzienda);
    if (!rs.EOF() && IsEmptyValue(rs["Directoryfile"])) {
        const std::string percorso = CercaSuiDischi(ado::toText(rs["NomeFile"]));
        rs.MoveFirst();
        ScriviColonne(kSenzaRegola, rs, {{"Directoryfile", percorso}});
        AggiornaRecord(rs);
    }
    Cartella = rs.EOF() ? std::string() : FinoAllUltimaBarra(ado::toText(rs["Directoryfile"]));
    rs.Close();
}

} // namespace vabo
