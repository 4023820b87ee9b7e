// The form of the accounts of pay slips: what its save writes.

#include "BustePagaFixture.h"

namespace vabo {
namespace {

/// Positions of a recordset without a current row.
constexpr long kPrimaDellInizio = -2, kOltreLaFine = -3;

class BustePagaSalva : public BustePagaForm {
protected:
    Riga letti(const char* colonne, int tipo) const {
        return riga(std::string("select ") + colonne +
                    " from TipoAnagraficaCPartite where id = " + std::to_string(tipo));
    }
    long posizione() const { return pagina.control<controls::DataControl>("elenco").Recordset().AbsolutePosition(); }
};

// Account 7 and 8 are read from the columns of Irap and written to those of the other funds.
TEST_F(BustePagaSalva, WithoutAPickEmptiesTheOtherFundsAndIrap) {
    apri();
    ASSERT_EQ(conto(7), "C/Irap - oneri");
    salva();
    EXPECT_EQ(righe(4),
              (Riga{"1080", "1082", "1083", "1089", "1091", "1185", "45", "1187", "45", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(conto(7), "C/Irap - oneri") << "until the row is read again";
    scegli(4);
    EXPECT_EQ(conto(7), "");
    EXPECT_EQ(conto(8), "");
    EXPECT_EQ(conto(6), "C/Inail - oneri");
}

TEST_F(BustePagaSalva, WritesEachPickToItsColumnsAndTheGroupsOfTheCharges) {
    apri();
    const int scelti[] = {1099, 1100, 1087, 1085, 1086, 1180, 1003, 1191, 1090};
    esegui("update conti set idmastro = 4, IdGruppoVabo = 11 where IdConto = 1003 update conti set IdGruppoVabo = 46 "
           "where IdConto = 1191");
    riapri();
    for (int i = 0; i < kSelettori; ++i) {
        prendi(i, scelti[i]);
    }
    const auto prima = tutte();
    salva();
    EXPECT_EQ(righe(4), (Riga{"1099", "1100", "1087", "1085", "1086", "1180", "44", "1003", "11", "1191", "46", "1090",
                              "0", "0", "0"}));
    for (const int altro : {5, 6, 9}) {
        EXPECT_EQ(righe(altro),
                  Riga(prima.at(altro == 9 ? 3 : altro - 4).begin() + 1, prima.at(altro == 9 ? 3 : altro - 4).end()))
            << altro;
    }
}

TEST_F(BustePagaSalva, SendsItsStatementsInTheirOrderAndNoOther) {
    apri();
    prendi(7, 1183);
    const support::StatementRecorder recorder;
    salva();
    std::vector<std::string> inviate = recorder.texts();
    ASSERT_GE(inviate.size(), 2U);
    // How a row is held is the driver's matter.
    const std::string tenuta = " WITH (UPDLOCK, ROWLOCK)";
    if (const auto dove = inviate[1].find(tenuta); dove != std::string::npos) {
        inviate[1].erase(dove, tenuta.size());
    }
    EXPECT_EQ(inviate,
              (Riga{"select * from TipoAnagraficaCPartite where id =4",
                    "SELECT [id], [IdIrpef], [IdIrpefReg], [IdIrpefCom], [IdInpsP], [IdInailP], [IdCInpsE], "
                    "[IdGInpsE], [IdCInailE], [IdGInailE], [IdCAltriFondiE], [IdGAltriFondiE], [IdAltriFondiP], "
                    "[IdCIrapE], [IdGIrapE], [IdIrapP] FROM [TipoAnagraficaCPartite] WHERE [id] = 4",
                    "SELECT  IdGruppoVabo From conti where IdConto =1185",
                    "SELECT  IdGruppoVabo From conti where IdConto =1187",
                    "SELECT  IdGruppoVabo From conti where IdConto =1183",
                    "UPDATE [TipoAnagraficaCPartite] SET [IdIrpef] = 1080, [IdIrpefReg] = 1082, [IdIrpefCom] = 1083, "
                    "[IdInpsP] = 1089, [IdInailP] = 1091, [IdCInpsE] = 1185, [IdGInpsE] = 45, [IdCInailE] = 1187, "
                    "[IdGInailE] = 45, [IdCAltriFondiE] = 1183, [IdGAltriFondiE] = 44, [IdAltriFondiP] = 0, "
                    "[IdCIrapE] = 0, [IdGIrapE] = 0, [IdIrapP] = 0 WHERE [id] = 4",
                    kElencoTipi, kElencoTipi}));
}

TEST_F(BustePagaSalva, APickOfTheLastTwoIsWrittenIntoEveryRowSavedAfterIt) {
    apri();
    prendi(7, 1183);
    prendi(8, 1087);
    scegli(5);
    EXPECT_EQ(conto(7), "C/Irap - oneri") << "what the row holds is shown";
    salva();
    EXPECT_EQ(letti("IdCAltriFondiE, IdGAltriFondiE, IdAltriFondiP", 5), (Riga{"1183", "44", "1087"}));
    EXPECT_EQ(letti("IdCAltriFondiE, IdGAltriFondiE, IdAltriFondiP", 4), (Riga{"1188", "45", "1092"}));
    scegli(6);
    salva();
    EXPECT_EQ(letti("IdCAltriFondiE, IdGAltriFondiE, IdAltriFondiP", 6), (Riga{"1183", "44", "1087"}));
}

TEST_F(BustePagaSalva, APickOfTheOthersIsGoneWhenARowIsRead) {
    apri();
    for (int i = 0; i < 7; ++i) {
        prendi(i, i < 5 ? 1099 : 1180);
    }
    scegli(6);
    salva();
    EXPECT_EQ(letti("IdIrpef, IdIrpefReg, IdIrpefCom, IdInpsP, IdInailP, IdCInpsE, IdCInailE", 6),
              (Riga{"1080", "1082", "1083", "1089", "1091", "1185", "1187"}));
}

TEST_F(BustePagaSalva, StoresTheTypeReadLastWhereverTheGridStands) {
    apri();
    pagina.grid("DataGrid1").setFocus();
    gui.press(Qt::Key_Down);
    ASSERT_EQ(pagina.currentRow("DataGrid1"), "5");
    prendi(0, 1099);
    salva();
    EXPECT_EQ(letti("IdIrpef", 4), Riga{"1099"});
    EXPECT_EQ(letti("IdIrpef", 5), Riga{"1081"});
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "6") << "one below the row where it stood";
}

TEST_F(BustePagaSalva, LeavesTheGridOneRowBelowAndBehindTheLastRowPastTheEnd) {
    apri();
    salva();
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "5");
    EXPECT_EQ(posizione(), 2);
    EXPECT_EQ(pagina.text("Titolo"), "Dipendenti") << "the row isn't read";
    scegli(9);
    salva();
    EXPECT_EQ(posizione(), kOltreLaFine);
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "9");
    salva();
    EXPECT_EQ(posizione(), kPrimaDellInizio) << "the position of the end counts as three rows back";
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "");
    EXPECT_EQ(letti("IdIrpef", 9), Riga{"1081"});
    scegli(9);
    EXPECT_EQ(pagina.text("Titolo"), "Professionisti");
}

TEST_F(BustePagaSalva, PastTheEndTheGridsLastRowCanBeReadAgain) {
    apri();
    scegli(9);
    esegui("update TipoAnagraficaCPartite set IdInpsP = 1090 where id = 9");
    salva();
    ASSERT_EQ(posizione(), kOltreLaFine);
    pagina.grid("DataGrid1").setFocus();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(pagina.text("Titolo"), "Professionisti");
    EXPECT_EQ(conto(3), "Debiti v/Inps") << "the null was filled with the first row's account, which was saved";
}

TEST_F(BustePagaSalva, TheGridShowsTheNewAccountInItsLayout) {
    apri();
    prendi(0, 1099);
    salva();
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 2), "Debiti v/partner");
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    for (int i = 0; i < griglia.ColumnCount(); ++i) {
        EXPECT_EQ(griglia.Columns(i).Visible(), i == 1 || i == 2) << i;
        EXPECT_TRUE(griglia.Columns(i).Locked()) << i;
    }
}

TEST_F(BustePagaSalva, ATypeWhoseNumberCountsAsNothingIsNotStored) {
    esegui(
        "update tipoanagrafica set IdTipoAnagrafica = 0 where IdTipoAnagrafica = 4 update TipoAnagraficaCPartite set "
        "id = 0 where id = 4");
    const auto prima = tutte();
    apri();
    ASSERT_EQ(pagina.text("Titolo"), "Dipendenti");
    const support::StatementRecorder recorder;
    salva();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(tutte(), prima);
}

TEST_F(BustePagaSalva, AnAccountWithoutAGroupLeavesTheFormerGroup) {
    esegui("update conti set IdGruppoVabo = null where IdConto in (1185, 1187, 1183) update TipoAnagraficaCPartite set "
           "IdGInpsE = 7, IdGInailE = 8, IdGAltriFondiE = 9 where id = 4");
    apri();
    prendi(7, 1183);
    salva();
    EXPECT_EQ(letti("IdCInpsE, IdGInpsE, IdCInailE, IdGInailE, IdCAltriFondiE, IdGAltriFondiE, IdCIrapE", 4),
              (Riga{"1185", "7", "1187", "8", "1183", "9", "0"}));
}

TEST_F(BustePagaSalva, AnAccountThatIsGoneHasTheGroupZero) {
    esegui("update TipoAnagraficaCPartite set IdCInpsE = 77 where id = 4");
    apri();
    salva();
    EXPECT_EQ(letti("IdCInpsE, IdGInpsE", 4), (Riga{"77", "0"}));
}

TEST_F(BustePagaSalva, ARowThatIsGoneIsToldAndEndsTheSave) {
    apri();
    esegui("delete from TipoAnagraficaCPartite where id = 4");
    const auto prima = tutte();
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    const support::StatementRecorder recorder;
    salva();
    EXPECT_EQ(recorder.texts(), Riga{"select * from TipoAnagraficaCPartite where id =4"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(tutte(), prima);
    scegli(5);
    salva();
    EXPECT_EQ(letti("IdCIrapE", 5), Riga{"0"}) << "the recordset was given back";
}

TEST_F(BustePagaSalva, ARowThatSomebodyElseHoldsStaysAsItIsInSilence) {
    apri();
    prendi(0, 1099);
    const auto prima = tutte();
    {
        ado::Connection altra;
        altra.Open(StringaAzienda);
        ado::Recordset tenuta;
        tenuta.Open("select * from TipoAnagraficaCPartite where id = 4", altra, ado::CursorType::Keyset,
                    ado::LockType::Pessimistic);
        tenuta["IdIrpef"] = 1;
        salva();
        EXPECT_EQ(conto(0), "203.05.0001 Debiti v/partner");
        EXPECT_EQ(pagina.currentRow("DataGrid1"), "5") << "as after a save";
        tenuta.CancelUpdate();
    }
    EXPECT_EQ(tutte(), prima);
    salva();
    EXPECT_EQ(letti("IdIrpef, IdCIrapE", 4), (Riga{"1099", "0"}));
}

TEST_F(BustePagaSalva, TheRowIsHeldForTheSaveOnly) {
    apri();
    const auto altri = [this] {
        ado::Connection altra;
        altra.Open(StringaAzienda);
        ado::Recordset tenuta;
        tenuta.Open("select * from TipoAnagraficaCPartite where id = 4", altra, ado::CursorType::Keyset,
                    ado::LockType::Pessimistic);
        tenuta["IdIrpef"] = 1;
        tenuta.CancelUpdate();
    };
    EXPECT_NO_THROW(altri());
    salva();
    EXPECT_NO_THROW(altri());
    EXPECT_FALSE(RsCondivisi(10).IsOpen());
}

/// A column that the table lacks when the row is saved.
struct Mancante {
    const char* colonna;
    const char* conLei; ///< the column that isn't written either
    int righe;          ///< that the grid shows after it: the list is read again
};

class BustePagaSenzaColonna : public BustePagaForm, public testing::WithParamInterface<Mancante> {};

TEST_P(BustePagaSenzaColonna, EachColumnIsWrittenForItself) {
    const auto& [mancante, conLei, quante] = GetParam();
    apri();
    prendi(7, 1183);
    prendi(8, 1087);
    const std::pair<std::string, std::string> valori[] = {
        {"IdIrpef", "1080"},  {"IdIrpefReg", "1082"},     {"IdIrpefCom", "1083"},   {"IdInpsP", "1089"},
        {"IdInailP", "1091"}, {"IdCInpsE", "1185"},       {"IdGInpsE", "45"},       {"IdCInailE", "1187"},
        {"IdGInailE", "45"},  {"IdCAltriFondiE", "1183"}, {"IdGAltriFondiE", "44"}, {"IdAltriFondiP", "1087"},
        {"IdCIrapE", "0"},    {"IdGIrapE", "0"},          {"IdIrapP", "0"}};
    std::string colonne;
    std::string sette;
    for (const auto& [nome, valore] : valori) {
        if (nome != mancante) {
            colonne += ", " + nome + " int null";
            sette += ", 7";
        }
    }
    esegui("drop table TipoAnagraficaCPartite");
    esegui("create table TipoAnagraficaCPartite (id int not null primary key" + colonne + ")");
    esegui("insert into TipoAnagraficaCPartite values (4" + sette + ")");
    salva();
    for (const auto& [nome, scritto] : valori) {
        if (nome != mancante) {
            EXPECT_EQ(valore("select " + nome + " from TipoAnagraficaCPartite"), nome == conLei ? "7" : scritto)
                << nome;
        }
    }
    EXPECT_EQ(pagina.rows("DataGrid1"), quante);
}

INSTANTIATE_TEST_SUITE_P(Di, BustePagaSenzaColonna,
                         testing::Values(Mancante{"IdIrpef", "", 0}, Mancante{"IdIrpefReg", "", 0},
                                         Mancante{"IdIrpefCom", "", 0}, Mancante{"IdInpsP", "", 0},
                                         Mancante{"IdInailP", "", 0}, Mancante{"IdCInpsE", "IdGInpsE", 0},
                                         Mancante{"IdGInpsE", "", 0}, Mancante{"IdCInailE", "IdGInailE", 0},
                                         Mancante{"IdGInailE", "", 0}, Mancante{"IdCAltriFondiE", "", 1},
                                         Mancante{"IdGAltriFondiE", "", 1}, Mancante{"IdAltriFondiP", "", 1},
                                         Mancante{"IdCIrapE", "", 0}, Mancante{"IdGIrapE", "", 0},
                                         Mancante{"IdIrapP", "", 0}),
                         [](const auto& test) { return std::string(test.param.colonna); });

} // namespace
} // namespace vabo
