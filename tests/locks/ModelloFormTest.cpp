// The two locks against the model of their rules, from their forms, on ledgers that nobody has thought of.

#include "locks/Caso.h"
#include "locks/ProgettoForm.h"
#include "locks/SedeForm.h"

namespace vabo {
namespace {

using libro::Caso;
using libro::Numero;
using Testi = std::vector<std::string>;

constexpr int kLibri = 2000; ///< of each lock, on each connection

/// What the form of either lock gets and leaves.
template<typename Form>
class ControIlModello : public Form {
protected:
    ControIlModello() { this->RecordProperty("seed", std::to_string(seme)); }

    void metti(const Caso& caso) const {
        std::string testo = "begin transaction; delete from partitadoppia; ";
        if (!caso.righe.empty()) {
            testo += inserimento(caso.righe) + "; ";
        }
        testo += "update contatorepd set iddate = " + (caso.senzaBilancio ? "null" : "'" + caso.alBilancio() + "'");
        testo += conto("tabellacontiutiliTransfersHQ", 1, caso.conti.hq1);
        testo += conto("tabellacontiutiliTransfersHQ", 2, caso.conti.hq2);
        testo += conto("TabellaContiUtili", 1, caso.conti.c1) + conto("TabellaContiUtili", 2, caso.conti.c2);
        testo += conto("TabellaContiUtili", 5, caso.conti.c5) + conto("TabellaContiUtili", 18, caso.conti.c18);
        testo += conto("TabellaContiUtili", 19, caso.conti.c19) + conto("TabellaContiUtili", 27, caso.conti.c27);
        testo += conto("TabellaContiUtili", 29, caso.conti.c29);
        this->scrivi(testo + "; commit transaction");
    }
    static std::string conto(const std::string& tabella, int id, const Numero& conto) {
        return "; update " + tabella + " set idconto = " + (conto ? std::to_string(*conto) : "null") +
               " where id = " + std::to_string(id);
    }
    /// What the locks read and write beside the ledger, but for the dates.
    Testi intorno() const {
        Testi tutte;
        for (const auto& [tabella, data] :
             {std::pair("progetti", "iddate"), std::pair("ElencoSedi", "idDatainvio"), std::pair("contatorepd", ""),
              std::pair("TabellaContiUtili", ""), std::pair("tabellacontiutiliTransfersHQ", "")}) {
            const std::string testo = "select " + colonneSenza(tabella, data) + " from " + tabella + " order by 1";
            for (const std::string& riga : this->lettura(testo)) {
                tutte.push_back(tabella + (" " + riga));
            }
        }
        return tutte;
    }
    /// The dates of all projects and branches.
    Testi date() const {
        Testi tutte = this->lettura("select 'progetto', ID, iddate from progetti order by ID");
        for (const std::string& riga :
             this->lettura("select 'sede', IdSede, idDatainvio from ElencoSedi order by IdSede")) {
            tutte.push_back(riga);
        }
        return tutte;
    }
    /// The same with another date of one of them.
    static Testi con(Testi date, const std::string& di, const std::string& nuova) {
        for (std::string& riga : date) {
            if (riga.starts_with(di + "|")) {
                riga = di + "|" + nuova;
            }
        }
        return date;
    }
    std::string colonneSenza(const std::string& tabella, const std::string& una) const {
        const auto blocco = this->lato->execute("select * from " + tabella + " where 1 = 0");
        blocco->nextResult();
        std::string nomi;
        for (const auto& colonna : blocco->columns()) {
            nomi += colonna.name == una ? "" : (nomi.empty() ? "[" : ", [") + colonna.name + "]";
        }
        return nomi;
    }
    std::string prova(int numero) const {
        return "ledger " + std::to_string(numero) + " of seed " + std::to_string(seme);
    }

    const std::uint32_t seme = std::random_device{}();
    libro::Generatore casi{seme};
};

class ProjectsModel : public ControIlModello<ProjectForm> {};
class BranchsModel : public ControIlModello<BranchForm> {};

/// By a click, or with the keys alone.
TEST_F(ProjectsModel, TheLockLeavesEveryLedgerAsItsRulesSay) {
    apri();
    senzaGruppi();
    for (int numero = 0; numero < kLibri; ++numero) {
        SCOPED_TRACE(prova(numero));
        const Caso caso = casi.nuovo(40, true);
        metti(caso);
        const Testi fermo = intorno();
        const Testi attese = con(date(), "progetto|10000003", caso.allaData());
        prendi(kProgetto);
        if (numero % 2 == 0) {
            digita(caso.digitata());
            premi("Command1");
        } else {
            digita(caso.digitata(""));
            gui.press(Qt::Key_Return);
            gui.press(Qt::Key_Return);
        }
        ASSERT_EQ(letto(),
                  testi(dopoIlProgetto(caso.righe, kProgetto, caso.allaData(), caso.alBilancio(), caso.conti)));
        ASSERT_EQ(date(), attese);
        ASSERT_EQ(intorno(), fermo);
    }
}

TEST_F(BranchsModel, TheLockLeavesEveryLedgerAsItsRulesSay) {
    apri();
    senzaGruppi();
    for (int numero = 0; numero < kLibri; ++numero) {
        SCOPED_TRACE(prova(numero));
        const Caso caso = casi.nuovo(0, false);
        metti(caso);
        const Testi fermo = intorno();
        const Testi attese = con(date(), "sede|4", caso.allaData());
        prendi(kSede);
        script.expectQuestion(domanda(caso.digitata()), true);
        if (numero % 2 == 0 || caso.data == caso.bilancio) { // Enter refuses the balance date
            digita(caso.digitata());
            premi("Command1");
        } else {
            digita(caso.digitata(""));
            gui.press(Qt::Key_Return);
            gui.press(Qt::Key_Return);
        }
        ASSERT_EQ(letto(), testi(dopoLaSede(caso.righe, kSede, caso.allaData(), caso.alBilancio(), caso.alGiornoDopo(),
                                            caso.conti)));
        ASSERT_EQ(date(), attese);
        ASSERT_EQ(intorno(), fermo);
    }
}

} // namespace
} // namespace vabo
