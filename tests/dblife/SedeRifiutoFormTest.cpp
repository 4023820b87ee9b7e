// The command of the headquarters with each of its requests to the server refused.

#include "CaricaSedeFixture.h"
#include "support/FormWorld.h"

namespace vabo {
namespace {

class Sede : public support::FormWorld<CaricaSedeForm> {
public:
    Sede() : FormWorld(kForm) {}

    using CaricaSedeForm::apri, CaricaSedeForm::applica, CaricaSedeForm::scegli;

    Riga fields() const { return campi(); }
    Riga shown() const { return {}; }
    Riga held() const { return {}; }
    std::string half() const {
        const Riga due = cartelle();
        return "branch " + sedi()[0][0] + ", " + due[0] + ", " + due[1];
    }
};

TEST(SedeRifiuto, OfItsCommand) {
    replay(support::Operation<Sede>{
        .tables = {"sedecentrale", "DirectoryHQ", "Directorybackup", "c:\\vabo\\directorysede.txt",
                   "c:\\vabo\\indirizzovabo.txt", "c:\\vabo\\indirizzovaboinstalla.txt",
                   "c:\\vabo\\indirizzovabodati.txt", "c:\\vabo\\directoryhq.txt", "c:\\vabo\\indirizzoservervabo.txt",
                   "c:\\vabo\\directorybackup.txt"},
        .reach =
            [](Sede& form) {
                form.apri();
                form.scegli("4");
            },
        .act = [](Sede& form) { form.applica(); },
        .folder = "C:\\Nuova",
        .once = support::inTurn(
            {{4, support::kRefused},
             {4,
              "told it; rows branch 4, C:\\Vabo\\Server\\VaboDatiHQ, C:\\Vabo\\Server\\Backup; list right; fields kept"},
             {4, "told it; rows branch 4, C:\\Nuova\\VaboDatiHQ, C:\\Vabo\\Server\\Backup; list right; fields kept"}}),
        .fromThere = support::inTurn(
            {{4, support::kRefused},
             {4,
              "told it; rows branch 4, C:\\Vabo\\Server\\VaboDatiHQ, C:\\Vabo\\Server\\Backup; list right; fields kept"},
             {4,
              "told it; rows branch 4, C:\\Nuova\\VaboDatiHQ, C:\\Vabo\\Server\\Backup; list right; fields kept"}})});
}

} // namespace
} // namespace vabo
