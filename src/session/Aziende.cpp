#include "session/Aziende.h"

#include "ado/Conversions.h"
#include "kit/ApriScrivibile.h"
#include "kit/IsEmptyValue.h"
#include "kit/PulisciNome.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

namespace vabo {

namespace {

std::string RigaAzienda(double numero) {
    return std::string("Select * from link_programma ") + " where  " + " id = " + ado::plainNumber(numero);
}

/// Sets IdAziendaLavoro to the number in the first row, where it isn't empty.
void PrendiNumero(const std::string& testo, const char* colonna) {
    ado::Recordset rs;
    ApriScrivibile(rs, testo, DbControllo);
    if (!rs.EOF() && !IsEmptyValue(rs[colonna])) {
        IdAziendaLavoro = ado::toDouble(rs[colonna]);
    }
    rs.Close();
}

std::int32_t CercaAziendaTerminale() {
    DbControllo.Open(ConnessioneControllo());
    DbControllo.Execute("delete from link_programmaTerminale where Nometerminale = N'' or Nometerminale is null");
    PrendiNumero(std::string("Select * from link_programmaTerminale") + " where  " + " Nometerminale like '" +
                     NomeTerminale + "'",
                 "Ultimo");
    if (IsEmptyValue(IdAziendaLavoro)) {
        PrendiNumero(std::string("Select * from link_programma ") + " order by dbname  ", "id");
    }
    IdAzienda = IdAziendaLavoro;
    const std::int32_t numero = ado::toLong(IdAziendaLavoro);
    DbControllo.Close();
    return numero;
}

void LeggiNumero(ado::Recordset& rs, const char* colonna, double& numero) {
    salta([&] { numero = ado::toDouble(rs[colonna]); });
}

/// IdAziendaLavoro is empty: takes the number from the terminal's row, or else the lowest company.
void CercaUltima(ado::Recordset& rs) {
    salta([&] {
        ApriScrivibile(rs,
                       std::string("Select * from link_programmaterminale where not nometerminale = N''") + " and  " +
                           " nometerminale = '" + Appoggio + "'",
                       DbControllo);
    });
    if (vera([&] { return rs.EOF(); })) {
        salta([&] { rs.Close(); });
        salta([&] { ApriScrivibile(rs, "Select * from link_programma  order by id", DbControllo); });
        salta([&] { rs.MoveFirst(); });
        LeggiNumero(rs, "id", IdAziendaLavoro);
    } else {
        salta([&] { rs.MoveFirst(); });
        LeggiNumero(rs, "Ultimo", IdAziendaLavoro);
        LeggiNumero(rs, "Ultimo", IdAzienda);
    }
    salta([&] { rs.Close(); });
    if (!IsEmptyValue(IdAziendaLavoro)) {
        salta([&] { ApriScrivibile(rs, RigaAzienda(IdAziendaLavoro), DbControllo); });
    } else {
        salta([&] { ApriScrivibile(rs, RigaAzienda(PrimaAziendaSuServer()), DbControllo); });
    }
    LeggiNumero(rs, "id", IdAzienda);
}

std::string PrimoDatabaseAzienda() {
    std::string nome;
    ado::Connection server;
    ado::Recordset rs;
    salta([&] { server.Open(LeggiConnessioneServer()); });
    salta([&] {
        rs.Open("SELECT * FROM master.dbo.sysdatabases where name like 'vabodati%' and not name like '%azienda%'",
                server);
    });
    if (vera([&] { return !rs.EOF(); })) {
        salta([&] { nome = ado::toText(rs["NAME"]); });
    }
    salta([&] { rs.Close(); });
    salta([&] { server.Close(); });
    return nome;
}

} // namespace

// An error is shown with its own description and ends the process.
std::int32_t AziendaTerminale() {
    if (IsEmptyValue(NomeTerminale)) {
        platform::dialogs().message("Carica Nome PC");
        return 0;
    }
    std::int32_t numero = 0;
    oFine([&] { numero = CercaAziendaTerminale(); });
    return numero;
}

// Failing statements are skipped.
std::int32_t UltimaAziendaTerminale() {
    Appoggio = PulisciNome(NomeTerminale);
    IdAzienda = IdAziendaLavoro;
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    CancellaTerminaliVuoti();
    ado::Recordset rs;
    if (IsEmptyValue(IdAziendaLavoro)) {
        CercaUltima(rs);
    } else {
        salta([&] { ApriScrivibile(rs, RigaAzienda(IdAziendaLavoro), DbControllo); });
        salta([&] { rs.MoveFirst(); });
    }
    LeggiNumero(rs, "id", IdAziendaLavoro);
    LeggiNumero(rs, "id", IdAzienda);
    std::int32_t numero = 0;
    salta([&] { numero = ado::toLong(IdAziendaLavoro); });
    salta([&] { rs.Close(); });
    CancellaTerminaliVuoti();
    salta([] { DbControllo.Close(); });
    return numero;
}

// Failing statements are skipped.
std::int32_t PrimaAziendaSuServer() {
    const std::string nome = PrimoDatabaseAzienda();
    salta([] { DbControllo.Close(); });
    salta([] { DbControllo.Open(ConnessioneControllo()); });
    std::int32_t numero = 0;
    ado::Recordset rs;
    salta([&] { ApriScrivibile(rs, "Select * from link_programma where  dbname='" + nome + "'", DbControllo); });
    if (vera([&] { return !rs.EOF(); })) {
        salta([&] { numero = ado::toLong(rs["id"]); });
    }
    salta([&] { rs.Close(); });
    return numero;
}

void CancellaTerminaliVuoti() {
    salta([] {
        DbControllo.Execute("delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null");
    });
}

// No failure rule here: errors reach the caller.
bool EsisteDatabase() {
    ado::Connection server;
    server.Open(LeggiConnessioneServer());
    ado::Recordset rs;
    rs.Open("SELECT name FROM master.dbo.sysdatabases WHERE name = N'" + NomeDatabase + "'", server);
    const bool esiste = !rs.EOF();
    rs.Close();
    server.Close();
    return esiste;
}

// An error ends the procedure; what was set before it stays.
bool LeggiIndirizzoMdf() {
    IndirizzoMdf.clear();
    bool riga = false;
    ado::Connection controllo;
    riesce([&] {
        controllo.Open(ConnessioneControllo());
        ado::Recordset rs;
        rs.Open("Select * from link_programma where dbname like '" + NomeDatabase + "'", controllo,
                ado::CursorType::Keyset, ado::LockType::Optimistic);
        if (rs.EOF()) {
            return;
        }
        if (!IsEmptyValue(rs["IndirizzoMdf"])) {
            IndirizzoMdf = ado::toText(rs["IndirizzoMdf"]);
        }
        riga = true;
    });
    return riga;
}

} // namespace vabo
