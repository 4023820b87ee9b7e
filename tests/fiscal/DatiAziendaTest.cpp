// The company's own row: how it is stored, and what is looked up for it.

#include "fiscal/DatiAzienda.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

constexpr const char* kVuoti[] = {"", " ", "0", "00", "0000", "0,00"};

/// Every field another text than in the sample.
CampiDatiAzienda pieni() {
    return {.nome = "Società",
            .indirizzo = "Via Nuova 1",
            .comune = "Bologna",
            .provincia = "BO",
            .cap = "40121",
            .idStato = 7,
            .idPagamento = 5,
            .idIncasso = 6,
            .telefono = "051 1",
            .fax = "051 2",
            .posta = "a@b.example",
            .sito = "b.example",
            .codiceFiscale = "CODICE",
            .partitaIva = "PARTITA",
            .cab = "12345",
            .abi = "67890",
            .cin = "X",
            .iban = "IT00",
            .bic = "BICBIC",
            .contoCorrente = "CC1",
            .intestatario = "Altri",
            .banca = "Altra banca"};
}

/// The name and these two alone.
CampiDatiAzienda conComune(const std::string& comune, const std::string& provincia) {
    CampiDatiAzienda campi;
    campi.nome = "Società";
    campi.comune = comune;
    campi.provincia = provincia;
    return campi;
}

class DatiAzienda : public AziendaAperta {
protected:
    std::string colonna(const std::string& nome) const { return valore("select " + nome + " from DatiAzienda"); }
    Riga tutto() const { return riga("select * from DatiAzienda"); }
    /// The rows written through a recordset. The table's name in them is the statement's or the catalog's, by driver.
    static Testi scritture(const support::StatementRecorder& recorder) {
        Testi testi = recorder.texts();
        std::erase_if(testi, [](const std::string& testo) {
            return !testo.starts_with("UPDATE [") && !testo.starts_with("INSERT INTO [");
        });
        return testi;
    }
};

TEST_F(DatiAzienda, ItsListsAreReadLetterForLetter) {
    EXPECT_EQ(ElencoAzienda(), "select * from DatiAzienda Order by ID");
    EXPECT_EQ(ElencoComuni(), "SELECT * from comuni order by des_comune");
    EXPECT_EQ(ElencoStatiPerNome(), "SELECT * FROM stati order by descstato");
    EXPECT_EQ(CondizioniDaScegliere(),
              "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione FROM "
              "(CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON "
              "CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER JOIN "
              "CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa = "
              "CondizioniPagamentoTipoIncasso.IdTipoRimessa");
}

TEST_F(DatiAzienda, ATermIsListedOnlyWhereItsCommencementAndItsKindExist) {
    const auto termini = [this] { return posto.rows(support::kCompany, CondizioniDaScegliere()).size(); };
    EXPECT_EQ(termini(), 14U);
    esegui("update CondizioniPagamento set IDDecorrenza = 99 where IDPagamento = 1");
    esegui("update CondizioniPagamento set IDDecorrenza = null where IDPagamento = 2");
    EXPECT_EQ(termini(), 12U);
    esegui("update CondizioniPagamento set IdTipoRimessa = 99 where IDPagamento = 3");
    EXPECT_EQ(termini(), 11U);
}

TEST_F(DatiAzienda, TheRowIsWrittenInOneUpdateLetterForLetter) {
    const support::StatementRecorder recorder;
    SalvaAzienda(pieni());
    EXPECT_EQ(recorder.texts().front(), "Select * from DatiAzienda");
    EXPECT_EQ(scritture(recorder),
              (Testi{"UPDATE [DatiAzienda] SET [Nome] = N'Società', [Via] = N'Via Nuova 1', [città] = N'Bologna (BO)', "
                     "[cap] = N'40121', [IdStato] = 7, [IDPagamento] = 5, [IdIncasso] = 6, [telefonoufficio] = "
                     "N'051 1', [numerofax] = N'051 2', [indirizzopostaelettronica] = N'a@b.example', [sito] = "
                     "N'b.example', [Codicefiscale] = N'CODICE', [PartitaIva] = N'PARTITA', [Cab] = N'12345', [Abi] = "
                     "N'67890', [Cin] = N'X', [IBAN] = N'IT00', [BIC] = N'BICBIC', [ccorrente] = N'CC1', "
                     "[Intestatario] = N'Altri', [Banca] = N'Altra banca', [idtipoazienda] = 0 WHERE [ID] = 1"}));
    EXPECT_EQ(tutto(),
              (Riga{"1",     "Società", "Via Nuova 1", "Bologna (BO)", "40121",  "7",           "5",     "6",
                    "051 1", "051 2",   "a@b.example", "b.example",    "CODICE", "PARTITA",     "12345", "67890",
                    "X",     "IT00",    "BICBIC",      "CC1",          "Altri",  "Altra banca", "0",     "1"}));
}

TEST_F(DatiAzienda, AnEmptyTableGetsItsFirstRow) {
    esegui("delete from DatiAzienda");
    const support::StatementRecorder recorder;
    SalvaAzienda(conComune("Bologna", ""));
    EXPECT_EQ(recorder.texts().front(), "Select * from DatiAzienda");
    EXPECT_EQ(scritture(recorder),
              (Testi{"INSERT INTO [DatiAzienda] ([Nome], [città], [IdStato], [IDPagamento], [IdIncasso], [Abi], [Cin], "
                     "[IBAN], [BIC], [ccorrente], [Intestatario], [Banca], [idtipoazienda]) VALUES (N'Società', "
                     "N'Bologna', 0, 0, 0, N'', N'', N'', N'', N'', N'', N'', 0)"}));
    EXPECT_EQ(tutto(),
              (Riga{"2",    "Società", "NULL", "Bologna", "NULL", "0", "0", "0", "NULL", "NULL", "NULL", "NULL",
                    "NULL", "NULL",    "NULL", "",        "",     "",  "",  "",  "",     "",     "0",    "0"}));
}

TEST_F(DatiAzienda, OfSeveralRowsTheFirstIsWritten) {
    esegui("insert into DatiAzienda (Nome) values ('Seconda')");
    SalvaAzienda(pieni());
    EXPECT_EQ(posto.rows(support::kCompany, "select Nome, Banca from DatiAzienda order by ID"),
              (std::vector<Riga>{{"Società", "Altra banca"}, {"Seconda", "NULL"}}));
}

/// A column and the field that is written into it.
struct Campo {
    const char* colonna;
    std::string CampiDatiAzienda::*campo;
};

TEST_F(DatiAzienda, ATextThatIsEmptyLeavesWhatItsColumnHas) {
    const Campo campi[] = {{"Via", &CampiDatiAzienda::indirizzo},
                           {"cap", &CampiDatiAzienda::cap},
                           {"telefonoufficio", &CampiDatiAzienda::telefono},
                           {"numerofax", &CampiDatiAzienda::fax},
                           {"indirizzopostaelettronica", &CampiDatiAzienda::posta},
                           {"sito", &CampiDatiAzienda::sito},
                           {"Codicefiscale", &CampiDatiAzienda::codiceFiscale},
                           {"PartitaIva", &CampiDatiAzienda::partitaIva},
                           {"Cab", &CampiDatiAzienda::cab}};
    SalvaAzienda(pieni());
    for (const auto& [nome, campo] : campi) {
        for (const char* vuoto : kVuoti) {
            CampiDatiAzienda altri = pieni();
            altri.*campo = vuoto;
            SalvaAzienda(altri);
            EXPECT_EQ(colonna(nome), pieni().*campo) << nome;
        }
    }
}

TEST_F(DatiAzienda, TheCoordinatesOfTheBankAreEmptied) {
    const Campo campi[] = {{"Abi", &CampiDatiAzienda::abi},
                           {"Cin", &CampiDatiAzienda::cin},
                           {"IBAN", &CampiDatiAzienda::iban},
                           {"BIC", &CampiDatiAzienda::bic},
                           {"ccorrente", &CampiDatiAzienda::contoCorrente},
                           {"Intestatario", &CampiDatiAzienda::intestatario},
                           {"Banca", &CampiDatiAzienda::banca}};
    for (const auto& [nome, campo] : campi) {
        for (const char* vuoto : kVuoti) {
            SalvaAzienda(pieni());
            ASSERT_EQ(colonna(nome), pieni().*campo);
            CampiDatiAzienda altri = pieni();
            altri.*campo = vuoto;
            SalvaAzienda(altri);
            EXPECT_EQ(colonna(nome), "") << nome;
        }
    }
}

TEST_F(DatiAzienda, KeysThatAreNotSetAreZeroAndTheNameIsAlwaysWritten) {
    CampiDatiAzienda campi = pieni();
    campi.idStato = campi.idPagamento = campi.idIncasso = 0;
    campi.nome.clear();
    SalvaAzienda(campi);
    EXPECT_EQ(riga("select IdStato, IDPagamento, IdIncasso, Nome from DatiAzienda"), (Riga{"0", "0", "0", ""}));
}

TEST_F(DatiAzienda, TheKindOfCompanyIsZeroAndTheTickStays) {
    for (const char* spunta : {"1", "0"}) {
        esegui(std::string("update DatiAzienda set idtipoazienda = 4, ModuloFattura = ") + spunta);
        SalvaAzienda(pieni());
        EXPECT_EQ(riga("select idtipoazienda, ModuloFattura from DatiAzienda"), (Riga{"0", spunta}));
    }
}

TEST_F(DatiAzienda, TheProvinceGrowsInTheTownUntilTheTownIsPickedAgain) {
    const auto salva = [this](const std::string& comune, const std::string& provincia) {
        SalvaAzienda(conComune(comune, provincia));
        return colonna("città");
    };
    EXPECT_EQ(salva("", ""), "Torino");
    EXPECT_EQ(salva("", "TO"), "Torino (TO)");
    EXPECT_EQ(salva("", "TO"), "Torino (TO) (TO)");
    EXPECT_EQ(salva("", "MI"), "Torino (TO) (TO) (MI)");
    for (const char* vuoto : kVuoti) {
        EXPECT_EQ(salva(vuoto, vuoto), "Torino (TO) (TO) (MI)");
    }
    EXPECT_EQ(salva("Bologna", "BO"), "Bologna (BO)");
    EXPECT_EQ(salva("Bologna", "BO"), "Bologna (BO)");
    EXPECT_EQ(salva("Bologna", ""), "Bologna");
    esegui("update DatiAzienda set città = null");
    EXPECT_EQ(salva("", "BO"), " (BO)");
    esegui("update DatiAzienda set città = '" + std::string(251, 'x') + "'");
    EXPECT_EQ(salva("", "B"), std::string(251, 'x') + " (B)");
    EXPECT_THROW(salva("", "B"), ado::Error) << "until it is full";
    EXPECT_EQ(colonna("città"), std::string(251, 'x') + " (B)");
}

TEST_F(DatiAzienda, ASaveClosesTheSharedRecordsetsAndTheLocalDatabase) {
    ApriScrivibile(RsCondivisi(20), "select * from stati", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    SalvaAzienda(pieni());
    EXPECT_FALSE(RsCondivisi(20).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(DatiAzienda, WhatDoesNotFitRaisesNothingIsWrittenAndTheNextSaveWorks) {
    const Riga prima = tutto();
    for (const auto campo :
         {&CampiDatiAzienda::nome, &CampiDatiAzienda::indirizzo, &CampiDatiAzienda::comune,
          &CampiDatiAzienda::provincia, &CampiDatiAzienda::cap, &CampiDatiAzienda::telefono, &CampiDatiAzienda::fax,
          &CampiDatiAzienda::posta, &CampiDatiAzienda::sito, &CampiDatiAzienda::codiceFiscale,
          &CampiDatiAzienda::partitaIva, &CampiDatiAzienda::cab, &CampiDatiAzienda::abi, &CampiDatiAzienda::cin,
          &CampiDatiAzienda::iban, &CampiDatiAzienda::bic, &CampiDatiAzienda::contoCorrente,
          &CampiDatiAzienda::intestatario, &CampiDatiAzienda::banca}) {
        CampiDatiAzienda lunghi = pieni();
        lunghi.*campo = std::string(4'000, 'x');
        EXPECT_THROW(SalvaAzienda(lunghi), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
    SalvaAzienda(pieni());
    EXPECT_EQ(colonna("Nome"), "Società");
}

TEST_F(DatiAzienda, ARowThatAnotherUserHoldsIsRefusedAtOnceAndLaterWritten) {
    const Riga prima = tutto();
    ado::Connection altro;
    altro.Open(StringaAzienda);
    ado::Recordset presa;
    ApriScrivibile(presa, "Select * from DatiAzienda", altro);
    presa["Nome"] = "Presa";
    EXPECT_THROW(SalvaAzienda(pieni()), ado::Error);
    EXPECT_EQ(tutto(), prima);
    presa.CancelUpdate();
    presa.Close();
    SalvaAzienda(pieni());
    EXPECT_EQ(colonna("Nome"), "Società");
}

// They are values of columns, not pieces of a statement.
TEST_F(DatiAzienda, TextsAreStoredAsTyped) {
    for (const std::string testo :
         {"'", "x'; delete from DatiAzienda --", "\"", "a;b", "/*", "a\tb", "\x01", "€ ü 漢"}) {
        CampiDatiAzienda campi = pieni();
        campi.nome = campi.indirizzo = campi.posta = campi.intestatario = campi.banca = testo;
        SalvaAzienda(campi);
        EXPECT_EQ(riga("select Nome, Via, indirizzopostaelettronica, Intestatario, Banca from DatiAzienda"),
                  Riga(5, testo));
    }
}

TEST_F(DatiAzienda, ATermIsLookedUpByItsKey) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(DescrizioneCondizione(4), "Bonifico bancario a 30 Fine mese");
    EXPECT_EQ(DescrizioneCondizione(99), "");
    EXPECT_EQ(DescrizioneCondizione(0), "");
    EXPECT_EQ(DescrizioneCondizione(1'000'000), "");
    EXPECT_EQ(DescrizioneCondizione(2.5), "");
    EXPECT_EQ(recorder.texts(), (Testi{" select Descrizione from CondizioniPagamento Where IDPagamento = 4",
                                       " select Descrizione from CondizioniPagamento Where IDPagamento = 99",
                                       " select Descrizione from CondizioniPagamento Where IDPagamento = 1000000",
                                       " select Descrizione from CondizioniPagamento Where IDPagamento = 2.5"}));
    esegui("drop table CondizioniPagamento");
    EXPECT_EQ(DescrizioneCondizione(4), "");
}

TEST_F(DatiAzienda, TheNameOfAStateIsItsSecondColumn) {
    const support::StatementRecorder recorder;
    EXPECT_EQ(NomeStato(1), "Italia");
    EXPECT_EQ(NomeStato(-3), std::nullopt);
    EXPECT_EQ(NomeStato(1'000'000), std::nullopt);
    EXPECT_EQ(NomeStato(2.5), std::nullopt);
    EXPECT_EQ(recorder.texts(),
              (Testi{"Select * from stati where idstato=1", "Select * from stati where idstato=-3",
                     "Select * from stati where idstato=1000000", "Select * from stati where idstato=2.5"}));
    esegui("update stati set descstato = null where idstato = 1");
    EXPECT_EQ(NomeStato(1), std::nullopt);
    esegui("drop table stati create table stati (idstato int, codice int)");
    esegui("insert into stati values (1, 39)");
    EXPECT_EQ(NomeStato(1), "39");
    esegui("drop table stati");
    EXPECT_THROW(NomeStato(1), ado::Error);
}

} // namespace
} // namespace vabo
