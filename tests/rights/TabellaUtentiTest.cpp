#include "rights/TabellaUtenti.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "support/TestedDriver.h"

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

constexpr const char* kProva = "select Administrator from  AbilitazioneAccessi where  administrator  = 1";
constexpr const char* kOccorre = "Occorre inserire almeno un amministratore di sistema! Operazione annullata";

class TabellaUtenti : public AziendaAperta {
protected:
    /// The first administrator's key is 1, the others' are 2, 3 and 4.
    std::vector<Riga> tabella() const {
        return posto.rows(support::kCompany, "select * from AbilitazioneAccessi order by idautonumber");
    }
    support::DialogScript script; ///< no box but those that the test expects
};

TEST_F(TabellaUtenti, ItsSelectionsStandLetterForLetter) {
    EXPECT_EQ(ElencoUtenti(),
              "Select  idautonumber, NomeUtente, PaswUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, "
              "A_Bilancio, A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, "
              "Disabilita from  AbilitazioneAccessi order by Administrator, NomeUtente");
    EXPECT_EQ(SelezioneUtenti(),
              "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, "
              "A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita from  "
              "AbilitazioneAccessi");
}

TEST_F(TabellaUtenti, LooksForAnAdministratorWithAndWithoutOne) {
    const support::StatementRecorder recorder;
    EXPECT_FALSE(MancaAmministratore(0, 0));
    EXPECT_FALSE(MancaAmministratore(2, 0));
    script.expectMessage(kOccorre);
    EXPECT_TRUE(MancaAmministratore(1, 0));
    EXPECT_EQ(recorder.texts(), (Testi{kProva, std::string(kProva) + " and not idautonumber = 2",
                                       std::string(kProva) + " and not idautonumber = 1"}));
}

TEST_F(TabellaUtenti, ATickedOrGreyedBoxIsEnough) {
    esegui("update AbilitazioneAccessi set Administrator = 0");
    EXPECT_FALSE(MancaAmministratore(0, 1));
    EXPECT_FALSE(MancaAmministratore(0, 2));
    script.expectMessage(kOccorre);
    EXPECT_TRUE(MancaAmministratore(0, 0));
}

TEST_F(TabellaUtenti, ATestReleasesEverySharedRecordsetAndTheLocalConnection) {
    for (const int casella : {0, 1}) {
        RsCondivisi(20).Open("select * from progetti", DbAzienda);
        DbLocale = std::make_unique<ado::Connection>();
        EXPECT_FALSE(MancaAmministratore(0, casella));
        EXPECT_FALSE(RsCondivisi(20).IsOpen());
        EXPECT_EQ(DbLocale, nullptr);
    }
}

TEST_F(TabellaUtenti, ATestClosesWhatALoginHasLeftOpen) {
    RsCondivisi(2).Open("select * from progetti", DbAzienda);
    EXPECT_FALSE(MancaAmministratore(0, 0));
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(TabellaUtenti, ATestThatFailsLeavesNothingOpen) {
    esegui("drop table AbilitazioneAccessi");
    EXPECT_THROW(MancaAmministratore(0, 1), ado::Error);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(TabellaUtenti, EachBoxIsStoredInItsOwnColumnWhetherTickedOrGreyed) {
    for (std::size_t i = 0; i < kColonneDiritti.size(); ++i) {
        for (const int valore : {1, 2}) {
            CampiUtente campi{.nome = "contabile", .caselle = {}};
            campi.caselle[i] = valore;
            SalvaUtente(2, campi);
            Riga attesa(kColonneDiritti.size(), "0");
            attesa[i] = "1";
            const Riga riga = this->riga("select * from AbilitazioneAccessi where idautonumber = 2");
            EXPECT_EQ(Riga(riga.begin() + 3, riga.end()), attesa) << kColonneDiritti[i].nome << " " << valore;
            EXPECT_EQ(riga[2], "estate24") << "the password stays";
        }
    }
}

TEST_F(TabellaUtenti, ANewUserIsAddedWithoutAPassword) {
    const support::StatementRecorder recorder;
    SalvaUtente(0, {.nome = "mario", .caselle = {0, 1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0}});
    EXPECT_EQ(recorder.texts(),
              (Testi{SelezioneUtenti(),
                     "INSERT INTO [AbilitazioneAccessi] ([NomeUtente], [Administrator], [A_Inserisci], [A_Cancella], "
                     "[A_Iva], [A_Bilancio], [A_Personale], [A_ArchivioStoria], [A_PFinanza], [A_Synchro], "
                     "[A_EmettiPagamenti], [A_Progetta], [Disabilita]) VALUES (N'mario', 0, 1, 1, 0, 0, 0, 0, 0, 0, "
                     "0, 0, 0)"}));
    EXPECT_EQ(tabella().back(),
              (Riga{"5", "mario", "NULL", "0", "1", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(tabella().size(), 5U);
}

TEST_F(TabellaUtenti, AKnownUserIsWrittenOverByItsKey) {
    const auto prima = tabella();
    const support::StatementRecorder recorder;
    SalvaUtente(2, {.nome = "ragioniere", .caselle = {0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}});
    EXPECT_EQ(recorder.texts().front(), SelezioneUtenti() + " where idautonumber = 2");
    EXPECT_EQ(recorder.holding("UPDATE ["),
              Testi{"UPDATE [AbilitazioneAccessi] SET [NomeUtente] = N'ragioniere', [Administrator] = 0, "
                    "[A_Inserisci] = 1, [A_Cancella] = 0, [A_Iva] = 0, [A_Bilancio] = 0, [A_Personale] = 0, "
                    "[A_ArchivioStoria] = 0, [A_PFinanza] = 0, [A_Synchro] = 0, [A_EmettiPagamenti] = 0, "
                    "[A_Progetta] = 0, [Disabilita] = 1 WHERE [idautonumber] = 2"});
    auto attesa = prima;
    attesa[1] = {"2", "ragioniere", "estate24", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "1"};
    EXPECT_EQ(tabella(), attesa);
}

TEST_F(TabellaUtenti, ASaveReleasesEverySharedRecordsetAlsoWhereItFails) {
    RsCondivisi(20).Open("select * from progetti", DbAzienda);
    SalvaUtente(2, {.nome = "contabile", .caselle = {}});
    EXPECT_FALSE(RsCondivisi(20).IsOpen());
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
    const auto prima = tabella();
    EXPECT_THROW(SalvaUtente(2, {.nome = std::string(26, 'x'), .caselle = {}}), ado::Error);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
    EXPECT_EQ(tabella(), prima);
    SalvaUtente(2, {.nome = std::string(25, 'x'), .caselle = {}});
    EXPECT_EQ(tabella()[1][1], std::string(25, 'x'));
}

TEST_F(TabellaUtenti, AUserThatIsGoneIsNotAddedAgain) {
    EliminaUtente(2);
    try {
        SalvaUtente(2, {.nome = "contabile", .caselle = {}});
        ADD_FAILURE() << "a row was found";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), ado::kNoCurrentRecord);
    }
    EXPECT_EQ(tabella().size(), 3U);
}

TEST_F(TabellaUtenti, AHeldRowIsRefusedAtOnceAndStaysHeldOnlyUntilItsOwnerCloses) {
    ado::Connection altro;
    altro.Open(StringaAzienda);
    ado::Recordset rs;
    rs.Open("select * from AbilitazioneAccessi where idautonumber = 2", altro, ado::CursorType::Keyset,
            ado::LockType::Pessimistic);
    rs["A_Iva"] = 0;
    EXPECT_THROW(SalvaUtente(2, {.nome = "ragioniere", .caselle = {}}), ado::Error);
    SalvaUtente(3, {.nome = "altro", .caselle = {}});
    rs.CancelUpdate();
    rs.Close();
    SalvaUtente(2, {.nome = "ragioniere", .caselle = {}});
    EXPECT_EQ(tabella()[1][1], "ragioniere");
}

TEST_F(TabellaUtenti, ADeletionIsOneStatementAndTakesTheLastAdministratorToo) {
    const support::StatementRecorder recorder;
    EliminaUtente(1);
    EXPECT_EQ(recorder.texts(), Testi{"delete from AbilitazioneAccessi where IdAutonumber=1"});
    EXPECT_EQ(valore("select count(*) from AbilitazioneAccessi where Administrator = 1"), "0");
    EXPECT_EQ(tabella().size(), 3U);
}

TEST_F(TabellaUtenti, EachRightHasItsColumnOfTheSameName) {
    Diritti visti;
    for (const ColonnaDiritto& colonna : kColonneDiritti) {
        EXPECT_EQ(visti.*colonna.flag, kFalso) << colonna.nome << " doubles another";
        visti.*colonna.flag = kVero;
    }
    EXPECT_EQ(visti, (Diritti{kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero, kVero}));
}

} // namespace
} // namespace vabo
