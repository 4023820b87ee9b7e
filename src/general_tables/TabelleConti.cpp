#include "general_tables/TabelleConti.h"

namespace vabo {

namespace {

const TabellaAltriConti& Tabella(int tabella) {
    return kAltriConti.at(static_cast<std::size_t>(tabella));
}

/// The accounts of the general project that aren't headings and aren't used in the table `esclusa`.
std::string ElencoConti(const std::string& esclusa) {
    return std::string("SELECT ") + " Conti.IdConto," + " Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto" +
           " FROM conti " + "  Where  " + " (IDProgetto = 10000001)" + " and  not" + " (contoreport  Like '%" + ".0" +
           "')" + " and not exists (select idconto from " + esclusa + " where idconto = conti.idconto)" + " ORDER BY " +
           " NomeConto";
}

} // namespace

std::string TestoContiUtili() {
    return "SELECT T.ID, T.Description, C.NomeConto, P.Type, P.Number,T.idconto,T.idconto1,gruppivabo.idgruppo, "
           "gruppivabo.dettagli  FROM (( TabellaContiUtili AS T left JOIN progetti as P ON T.IdProgetto = P.ID) left "
           "JOIN gruppivabo ON T.IDConto1 = gruppivabo.IDGruppo) left JOIN conti AS C  ON T.IDConto = C.IdConto order "
           "by T.Id";
}

std::string TestoContiIva() {
    return "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto, "
           "B.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli  FROM ((ivaTabellaContiUtili AS B LEFT JOIN Conti AS C "
           "ON B.IDConto = C.IdConto) LEFT JOIN Progetti ON B.IdProgetto = Progetti.ID) left join gruppivabo on "
           "B.idconto1 = gruppivabo.idgruppo order by B.ID";
}

std::string TestoContiPersonale() {
    return "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto, "
           "B.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli  FROM ((BusteTabellaContiUtili AS B LEFT JOIN conti AS "
           "C ON B.IDConto = C.IdConto) LEFT JOIN Progetti ON B.IdProgetto = Progetti.ID) left join gruppivabo on "
           "B.idconto1 = gruppivabo.idgruppo order by B.ID";
}

std::string TestoAltriConti(int tabella) {
    if (tabella == 0) {
        return "SELECT T.IdTipoAnagrafica, T.TipoAnagrafe, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, "
               "gruppivabo.dettagli FROM (tipoanagrafica AS T left join conti AS C  on T.idconto=C.idconto) left join "
               "gruppivabo on T.idconto1 = gruppivabo.idgruppo order by T.IdTipoAnagrafica";
    }
    return "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli "
           "FROM (" +
           std::string(Tabella(tabella).nome) +
           " AS T left join conti AS C  on T.idconto=C.idconto) left join gruppivabo on T.idconto1 = "
           "gruppivabo.idgruppo order by T.Description";
}

std::string TestoAltriContiRipiego(int tabella) {
    return R"(SELECT T.Id, T.description, T.idconto, " as NomeConto, T.idconto1," as idgruppo, " as dettagli FROM )" +
           std::string(Tabella(tabella).nome) + " order by T.Description";
}

std::string ElencoContiUtili() {
    return ElencoConti("tipoanagrafica");
}

std::string ElencoAltriConti() {
    return ElencoConti("tabellacontiutili");
}

std::string ElencoContiPersonale() {
    return ElencoConti("TabellaContiUtiliTransfersHq");
}

std::string ElencoContiFatture() {
    return std::string("SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM  Conti  "
                       "Where not idchiave  like '") +
           "%.0" + "' and idmastro between 2 and 3 ORDER BY NomeConto";
}

} // namespace vabo
