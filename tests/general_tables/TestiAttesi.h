#pragma once

#include <array>

namespace vabo {

// The statements of the grids and of the lists, letter for letter as they must be sent.

inline constexpr const char* kTestoContiUtili =
    "SELECT T.ID, T.Description, C.NomeConto, P.Type, P.Number,T.idconto,T.idconto1,gruppivabo.idgruppo, "
    "gruppivabo.dettagli  FROM (( TabellaContiUtili AS T left JOIN progetti as P ON T.IdProgetto = P.ID) left JOIN "
    "gruppivabo ON T.IDConto1 = gruppivabo.IDGruppo) left JOIN conti AS C  ON T.IDConto = C.IdConto order by T.Id";

inline constexpr const char* kTestoContiIva =
    "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto, B.idconto1,gruppivabo.idgruppo, "
    "gruppivabo.dettagli  FROM ((ivaTabellaContiUtili AS B LEFT JOIN Conti AS C ON B.IDConto = C.IdConto) LEFT JOIN "
    "Progetti ON B.IdProgetto = Progetti.ID) left join gruppivabo on B.idconto1 = gruppivabo.idgruppo order by B.ID";

inline constexpr const char* kTestoContiPersonale =
    "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto, B.idconto1,gruppivabo.idgruppo, "
    "gruppivabo.dettagli  FROM ((BusteTabellaContiUtili AS B LEFT JOIN conti AS C ON B.IDConto = C.IdConto) LEFT JOIN "
    "Progetti ON B.IdProgetto = Progetti.ID) left join gruppivabo on B.idconto1 = gruppivabo.idgruppo order by B.ID";

inline constexpr std::array<const char*, 4> kTestiAltriConti = {
    "SELECT T.IdTipoAnagrafica, T.TipoAnagrafe, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, "
    "gruppivabo.dettagli FROM (tipoanagrafica AS T left join conti AS C  on T.idconto=C.idconto) left join gruppivabo "
    "on T.idconto1 = gruppivabo.idgruppo order by T.IdTipoAnagrafica",
    "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli FROM "
    "(bustetabellacontiutili AS T left join conti AS C  on T.idconto=C.idconto) left join gruppivabo on T.idconto1 = "
    "gruppivabo.idgruppo order by T.Description",
    "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli FROM "
    "(tabellacontiutiliTransfersHQ AS T left join conti AS C  on T.idconto=C.idconto) left join gruppivabo on "
    "T.idconto1 = gruppivabo.idgruppo order by T.Description",
    "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli FROM "
    "(tabellacontiutilicontributi AS T left join conti AS C  on T.idconto=C.idconto) left join gruppivabo on "
    "T.idconto1 = gruppivabo.idgruppo order by T.Description",
};

/// Used after a store where the grid's recordset is at EOF. The server refuses it because of the unpaired quotes.
inline constexpr std::array<const char*, 4> kTestiDiRipiego = {
    "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli FROM "
    "tipoanagrafica order by T.Description",
    "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli FROM "
    "bustetabellacontiutili order by T.Description",
    "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli FROM "
    "tabellacontiutiliTransfersHQ order by T.Description",
    "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli FROM "
    "tabellacontiutilicontributi order by T.Description",
};

inline constexpr const char* kElencoContiUtili =
    "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where   (IDProgetto = "
    "10000001) and  not (contoreport  Like '%.0') and not exists (select idconto from tipoanagrafica where idconto = "
    "conti.idconto) ORDER BY  NomeConto";

inline constexpr const char* kElencoAltriConti =
    "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where   (IDProgetto = "
    "10000001) and  not (contoreport  Like '%.0') and not exists (select idconto from tabellacontiutili where idconto "
    "= conti.idconto) ORDER BY  NomeConto";

inline constexpr const char* kElencoContiPersonale =
    "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where   (IDProgetto = "
    "10000001) and  not (contoreport  Like '%.0') and not exists (select idconto from TabellaContiUtiliTransfersHq "
    "where idconto = conti.idconto) ORDER BY  NomeConto";

inline constexpr const char* kElencoContiFatture =
    "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM  Conti  Where not idchiave  "
    "like '%.0' and idmastro between 2 and 3 ORDER BY NomeConto";

inline constexpr const char* kElencoTrattamenti =
    "SELECT IdAutoNumber,  Descrizione From IvaTrattamento where idautonumber > 1 and not sigla like 'IV%' ORDER BY "
    "Descrizione";

} // namespace vabo
