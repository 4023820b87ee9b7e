#pragma once

#include "fiscal/SezionaliIva.h"
#include "general_tables/AziendaAperta.h"
#include "support/DialogScript.h"

#include <QString>

#include <string>
#include <vector>

namespace vabo {

using Righe = std::vector<Riga>;
using Testi = std::vector<std::string>;

/// The three sections of the first sample company; their keys are 1, 2 and 3, their numbers 1, 2 and 10.
class SezionaliAperti : public AziendaAperta {
protected:
    SezionaliAperti() {
        IdSede = 1;
        DirittiUtente.A_Cancella = kVero;
    }

    Righe tabella(const std::string& colonne) const {
        return posto.rows(support::kCompany, "select " + colonne + " from IvaSezionale order by idautonumber");
    }
    /// Every column of every row.
    Righe tutto() const { return tabella("*"); }
    /// Number, branch, description, area and period of all sections.
    Righe testate() const { return tabella("id, idsede, descrizione, AreaAttivita, Liquidazione"); }
    /// The four dates of all sections: purchases, definitive purchases, sales, definitive sales.
    Righe date() const {
        return tabella("UltimaDataAcquisti, UltimaDataAcquistir, UltimaDatavendite, UltimaDatavenditer");
    }
    /// Invoices and returns of purchases, then of sales.
    Righe contatori() const {
        return tabella("ultimaFatturaAcquisti, Ultimaresoacquisti, ultimaFatturavendite, Ultimaresivendite");
    }
    Righe progressivi() const {
        return tabella("ultimoprogressivoAcquisti, Ultimoprogressivovendite, UltimaPaginaAcquisti, "
                       "UltimaPaginaVendite");
    }
    /// Twelve months and the carry.
    Righe importi() const {
        return tabella("importodefinitivo1, importodefinitivo2, importodefinitivo3, importodefinitivo4, "
                       "importodefinitivo5, importodefinitivo6, importodefinitivo7, importodefinitivo8, "
                       "importodefinitivo9, importodefinitivo10, importodefinitivo11, importodefinitivo12, "
                       "importodefinitivoAnno");
    }
    /// The rows written through a recordset. The table's name in them is the statement's or the catalog's, by driver.
    static Testi scritture(const support::StatementRecorder& recorder) {
        Testi testi;
        for (const std::string& testo : recorder.texts()) {
            if (testo.starts_with("UPDATE [") || testo.starts_with("INSERT INTO [")) {
                testi.push_back(
                    QString::fromStdString(testo).replace("[ivasezionale]", "[IvaSezionale]").toStdString());
            }
        }
        return testi;
    }
    /// The table again, with no rows and every column nullable but the key.
    void ricreaConNulli() const {
        std::string colonne;
        for (const char* data :
             {"UltimaDataAcquisti", "UltimaDatavendite", "UltimaDataAcquistir", "UltimaDatavenditer"}) {
            colonne += std::string(", ") + data + " datetime null";
        }
        for (const char* numero : {"ultimaFatturaAcquisti", "Ultimaresoacquisti", "ultimaFatturavendite",
                                   "Ultimaresivendite", "ultimoprogressivoAcquisti", "Ultimoprogressivovendite",
                                   "Liquidazione", "UltimaPaginaAcquisti", "UltimaPaginaVendite"}) {
            colonne += std::string(", ") + numero + " int null";
        }
        for (int mese = 1; mese <= 12; ++mese) {
            colonne += ", importodefinitivo" + std::to_string(mese) + " decimal(18,2) null";
        }
        esegui("drop table IvaSezionale");
        esegui(
            "create table IvaSezionale (idautonumber int identity(1,1) not null primary key, id int null, idsede int "
            "null, descrizione nvarchar(255) null, AreaAttivita nvarchar(255) null, importodefinitivoAnno "
            "decimal(18,2) null" +
            colonne + ")");
    }
    /// What the column holds in all sections, blank by blank.
    std::string ovunque(const std::string& colonna) const {
        std::string testo;
        for (const Riga& riga : tabella(colonna)) {
            testo += (testo.empty() ? "" : " ") + riga[0];
        }
        return testo;
    }

    support::DialogScript script; ///< no box but those that the test expects
};

} // namespace vabo
