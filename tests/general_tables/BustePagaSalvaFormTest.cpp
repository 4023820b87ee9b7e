// The form of the accounts of pay slips: what its save writes.

#include "BustePagaFixture.h"

namespace vabo {
namespace {

/// Positions of a recordset without a current row.
constexpr long kPrimaDellInizio = -2, kOltreLaFine = -3;

class BustePagaSalva : public BustePagaForm {
protected:
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
                    ("SELECT [id], [IdIrpef], [IdIrpefReg], [IdIrpefCom], [IdInpsP], [IdInailP], [IdCInpsE], "
                     "[IdGInpsE], [IdCInailE], [IdGInailE], [IdCAltriFondiE], [IdGAltriFondiE], [IdAltriFondiP], "
                     "[IdCIrapE], [IdGIrapE], [IdIrapP] FROM [TipoAnagraficaCPartite] WHERE [id] = 4"),
                    "SELECT  IdGruppoVabo From conti where IdConto =1185",
                    "SELECT  IdGruppoVabo From conti where IdConto =1187",
                    "SELECT  IdGruppoVabo From conti where IdConto =1183",
                    ("UPDATE [TipoAnagraficaCPartite] SET [IdIrpef] = 1080, [IdIrpefReg] = 1082, [IdIrpefCom] = 1083, "
                     "[IdInpsP] = 1089, [IdInailP] = 1091, [IdCInpsE] = 1185, [IdGInpsE] = 45, [IdCInailE] = 1187, "
                     "[IdGInailE] = 45, [IdCAltriFondiE] = 1183, [IdGAltriFondiE] = 44, [IdAltriFondiP] = 0, "
                     "[IdCIrapE] = 0, [IdGIrapE] = 0, [IdIrapP] = 0 WHERE [id] = 4"),
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

} // namespace
} // namespace vabo
