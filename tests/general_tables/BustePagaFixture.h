#pragma once

#include "app/Forms.h"
#include "general_tables/AziendaAperta.h"
#include "state/variabili.h"
#include "support/FormPage.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace vabo {

// The statements of the lists and of the grid, letter for letter as they must be sent.

inline constexpr const char* kElencoDebiti =
    "SELECT idconto, contoreport + ' ' + Nomeconto as nomeconto from conti where idmastro = 2     and idprogetto = "
    "10000001 and not idchiave like '%.0' and not exists (select idconto from tipoanagrafica where "
    "tipoanagrafica.idconto = conti.idconto) order by contoreport + ' ' + Nomeconto";

inline constexpr const char* kElencoOneri =
    "SELECT idconto, contoreport + ' ' + Nomeconto as nomeconto from conti where idmastro = 4     and idprogetto = "
    "10000001 and not idchiave like '%.0' and not exists (select idconto from tipoanagrafica where "
    "tipoanagrafica.idconto = conti.idconto) order by contoreport + ' ' + Nomeconto";

inline constexpr const char* kElencoTipi =
    " SELECT   tipoanagrafica.IdTipoAnagrafica, tipoanagrafica.TipoAnagrafe,  conti.NomeConto,  "
    "TipoAnagraficaCPartite.IdIrpef, TipoAnagraficaCPartite.IdIrpefReg,  TipoAnagraficaCPartite.IdIrpefCom, "
    "TipoAnagraficaCPartite.IdInpsP,  TipoAnagraficaCPartite.IdInailP, TipoAnagraficaCPartite.IdCInpsE, "
    "TipoAnagraficaCPartite.IdCInailE, TipoAnagraficaCPartite.IdCIrapE, TipoAnagraficaCPartite.IdGIrapE , "
    "TipoAnagraficaCPartite.IdGInpsE, TipoAnagraficaCPartite.IdGInailE, TipoAnagraficaCPartite.IdIrapP FROM  "
    "tipoanagrafica INNER JOIN TipoAnagraficaCPartite ON tipoanagrafica.IdTipoAnagrafica = "
    "TipoAnagraficaCPartite.id  left JOIN conti ON TipoAnagraficaCPartite.IdIrpef = conti.IdConto order by ID";

/// The form of the accounts of pay slips with the first sample company, whose types 4, 5, 6 and 9 have accounts. The
/// form below it on the stack is an empty one.
class BustePagaForm : public AziendaAperta {
protected:
    BustePagaForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Morlan", [] { return std::make_unique<controls::Form>("Avvio_Morlan"); });
    }
    void apri() {
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan", kForm};
        CimaForm = 2;
        pagina.show();
    }
    void riapri() {
        gui.forms().unload(kForm);
        support::Gui::handleEvents();
        apri();
    }
    static std::string combo(int indice) { return "DCBItem_" + std::to_string(indice); }
    std::string conto(int indice) const { return pagina.combo(combo(indice)).Text(); }
    /// What the nine pickers show.
    Riga conti() const {
        Riga testi;
        for (int i = 0; i < kSelettori; ++i) {
            testi.push_back(conto(i));
        }
        return testi;
    }
    void scegli(int tipo) const { pagina.choose("DataGrid1", std::to_string(tipo)); }
    /// Picks an account by its number.
    void prendi(int indice, int idConto) const {
        pagina.pick(combo(indice), valore("select contoreport + ' ' + Nomeconto from conti where IdConto = " +
                                          std::to_string(idConto)));
    }
    void salva() { gui.click(kForm, "Command9"); }

    std::string nomeDi(int idConto) const {
        return valore("select NomeConto from conti where IdConto = " + std::to_string(idConto));
    }
    /// The accounts and groups of a type, in the order of the columns below.
    Riga righe(int tipo) const {
        return riga(std::string("select ") + kColonne +
                    " from TipoAnagraficaCPartite where id = " + std::to_string(tipo));
    }
    Riga letti(const char* colonne, int tipo) const {
        return riga(std::string("select ") + colonne +
                    " from TipoAnagraficaCPartite where id = " + std::to_string(tipo));
    }
    std::vector<Riga> tutte() const {
        return posto.rows(support::kCompany,
                          std::string("select id, ") + kColonne + " from TipoAnagraficaCPartite order by id");
    }

    static constexpr const char* kForm = "TabelleBustePaga";
    static constexpr int kSelettori = 9;
    static constexpr const char* kColonne = "IdIrpef, IdIrpefReg, IdIrpefCom, IdInpsP, IdInailP, IdCInpsE, IdGInpsE, "
                                            "IdCInailE, IdGInailE, IdCAltriFondiE, IdGAltriFondiE, IdAltriFondiP, "
                                            "IdCIrapE, IdGIrapE, IdIrapP";

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina{gui, kForm};
};

} // namespace vabo
