// Another program that runs a lock: locks_runner <drive C> <company> progetto|sede <id> <date> <statement>. It says
// "pronto", waits for a line, runs, and says how many statements it sent, or the error that ended it. Ahead of the
// statement of that number, from 1, it is killed as by a power cut; 0 is none.

#include "locks/Avanzamento.h"
#include "locks/BloccoProgetto.h"
#include "locks/BloccoSede.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"
#include "support/Environment.h"
#include "support/SystemProcesses.h"

#include <iostream>
#include <string>

namespace {

class SenzaBarra : public vabo::Avanzamento {
public:
    void Porta(double /*parte*/) override {}
    void Comincia(long /*passi*/) override {}
    void Avanza() override {}
};

} // namespace

int main(int count, char** arguments) {
    if (count != 7) {
        std::cerr << "usage: locks_runner <drive C> <company> progetto|sede <id> <date> <statement>\n";
        return 2;
    }
    platform::setWorkstation(support::workstationOn(arguments[1]));
    platform::connectDataLayer();
    vabo::NomeDatabase = arguments[2];
    vabo::StringaAzienda = vabo::ConnessioneAzienda() + ";";
    vabo::DbAzienda.Open(vabo::StringaAzienda);
    const double id = std::stod(arguments[4]);
    const int fatale = std::stoi(arguments[6]);
    int inviate = 0;
    ado::setStatementRecorder([&](const std::string& /*testo*/) {
        if (++inviate == fatale) {
            support::dieAtOnce();
        }
    });
    std::cout << "pronto" << std::endl;
    std::string via;
    std::getline(std::cin, via);
    SenzaBarra barra;
    try {
        if (std::string(arguments[3]) == "progetto") {
            vabo::AggiornaDataDefinitiva(id, arguments[5], barra);
        } else {
            vabo::BloccaSede(id, arguments[5], barra);
        }
        std::cout << inviate << std::endl;
    } catch (const std::exception& errore) {
        std::cout << errore.what() << std::endl;
    }
    return 0;
}
