#include "general_tables/CaricaOpzioni.h"

#include "ado/Conversions.h"
#include "general_tables/RecordsetConsole.h"
#include "kit/ApriScrivibile.h"
#include "kit/ErrorHandling.h"
#include "kit/Uguale.h"

namespace vabo {

namespace {

ado::Recordset& Apri(const Opzione& opzione) {
    ado::Recordset& rs = RsOpzioni();
    ApriScrivibile(rs, TestoOpzione(opzione), DbAzienda);
    return rs;
}

int Negato(const ado::Value& salvato) {
    return ado::toInteger(ado::Value(-ado::toDouble(salvato)));
}

} // namespace

TassiDiCambio LeggiTassiDiCambio() {
    constexpr double kInforEuro = -1;
    constexpr double kBancaDItalia = -2;
    const Opzione& opzione = OpzioneDi("Check10");
    TassiDiCambio tassi = TassiDiCambio::Nessuno;
    ado::Recordset rs;
    ApriScrivibile(rs, TestoOpzione(opzione), DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
        rs["id"] = opzione.riga;
        rs["Lunghezza"] = 0;
        rs["Descrizione"] = opzione.descrizione;
        rs.Update();
    } else if (Uguale(rs["Lunghezza"], kBancaDItalia)) {
        tassi = TassiDiCambio::BancaDItalia;
    } else if (Uguale(rs["Lunghezza"], kInforEuro)) {
        tassi = TassiDiCambio::InforEuro;
    }
    rs.Close();
    return tassi;
}

void CaricaSedeAmministrativa(const MostraCasella& mostra) {
    const Opzione& opzione = OpzioneDi("Check6");
    ado::Recordset& rs = Apri(opzione);
    if (rs.EOF()) {
        rs.AddNew();
        rs["Descrizione"] = opzione.descrizione;
        rs["Contatore"] = 0;
        rs.Update();
    } else {
        mostra(Negato(rs["Contatore"]));
    }
    rs.Close();
}

void CaricaSoloDiLoco(const MostraCasella& mostra) {
    const Opzione& opzione = OpzioneDi("Check9");
    ado::Recordset& rs = Apri(opzione);
    if (rs.EOF()) {
        rs.AddNew();
        rs["id"] = opzione.riga;
        rs["Descrizione"] = opzione.descrizione;
        rs.Update();
    } else {
        rs.MoveFirst();
    }
    if (const ado::Value lunghezza = rs["Lunghezza"].Value(); !lunghezza.isNull()) {
        mostra(Negato(lunghezza));
    }
    rs.Close();
}

// RsOpzioni() instead of a reference: the box's handler drops the recordset that is opened here.
void CaricaBudgetOng(const MostraCasella& mostra) {
    const Opzione& opzione = OpzioneDi("Check7");
    if (Apri(opzione).EOF()) {
        RsOpzioni().AddNew();
        RsOpzioni()["id"] = opzione.riga;
        RsOpzioni()["Lunghezza"] = 0;
        mostra(0);
        RsOpzioni()["Descrizione"] = opzione.descrizione;
        AggiornaRecord(RsOpzioni());
        RsOpzioni().Close();
    } else {
        mostra(Negato(RsOpzioni()["Lunghezza"]));
    }
    RsOpzioni().Close();
}

void CaricaOpzione(const Opzione& opzione, const MostraCasella& mostra) {
    ado::Recordset& rs = Apri(opzione);
    if (!rs.EOF()) {
        mostra(Negato(rs["Contatore"]));
    }
    rs.Close();
}

} // namespace vabo
