// The form of the accounts of pay slips: reading a row, with nulls in it, and picking accounts.

#include "BustePagaFixture.h"

#include <QTest>

namespace vabo {
namespace {

class BustePagaLettura : public BustePagaForm {};

TEST_F(BustePagaLettura, ADoubleClickShowsTheRowAndAMoveToItDoesNot) {
    apri();
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    const QPoint seconda = griglia.visualRect(griglia.model()->index(1, 1)).center();
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, seconda);
    support::Gui::handleEvents();
    EXPECT_EQ(pagina.text("Titolo"), "Dipendenti");
    QTest::mouseDClick(griglia.viewport(), Qt::LeftButton, {}, seconda);
    support::Gui::handleEvents();
    EXPECT_EQ(pagina.text("Titolo"), "Collaboratori");
    EXPECT_EQ(conti(), (Riga{"Erario c/ritenute Irpef autonomi", "Irpef regionale", "Irpef comunale",
                             "Debiti v/Inps gestione separata", "Debiti v/Inail", "C/Inps gestione separata - oneri",
                             "C/Inail - oneri", "C/Irap - oneri", "Debiti v/Irap"}));
}

TEST_F(BustePagaLettura, TheLastTwoShowTheAccountsOfIrap) {
    esegui("update TipoAnagraficaCPartite set IdCIrapE = 1183, IdIrapP = 1087, IdCAltriFondiE = 1188, IdAltriFondiP = "
           "1092 where id = 5");
    apri();
    scegli(5);
    EXPECT_EQ(conto(7), "Quota Tfr");
    EXPECT_EQ(conto(8), "Imposta sostitutiva Tfr");
}

TEST_F(BustePagaLettura, ReadingSendsTheNamesOfTheAccountsThatAreThere) {
    esegui("update TipoAnagraficaCPartite set IdIrpefReg = 0, IdIrapP = 0 where id = 5");
    apri();
    const support::StatementRecorder recorder;
    scegli(5);
    EXPECT_EQ(
        recorder.texts(),
        (Riga{" select nomeconto from conti Where idconto = 1081", " select nomeconto from conti Where idconto = 1083",
              " select nomeconto from conti Where idconto = 1090", " select nomeconto from conti Where idconto = 1091",
              " select nomeconto from conti Where idconto = 1186", " select nomeconto from conti Where idconto = 1187",
              " select nomeconto from conti Where idconto = 1189"}));
    EXPECT_EQ(conto(1), "");
    EXPECT_EQ(conto(8), "");
}

TEST_F(BustePagaLettura, AnAccountThatIsGoneOrWithoutANameIsShownEmptyAndStoredAllTheSame) {
    esegui("update conti set NomeConto = null where IdConto = 1083 update conti set NomeConto = '0' where IdConto = "
           "1091 update TipoAnagraficaCPartite set IdInpsP = 77 where id = 4");
    apri();
    EXPECT_EQ(conto(2), "");
    EXPECT_EQ(conto(3), "");
    EXPECT_EQ(conto(4), "") << "a name that counts as nothing";
    salva();
    EXPECT_EQ(riga("select IdIrpefCom, IdInpsP, IdInailP from TipoAnagraficaCPartite where id = 4"),
              (Riga{"1083", "77", "1091"}));
}

TEST_F(BustePagaLettura, APickGoesToTheNextPickerAndTheLastOneKeepsTheFocus) {
    apri();
    for (int i = 0; i < kSelettori; ++i) {
        const int scelto = i >= 5 && i <= 7 ? 1180 : 1099;
        prendi(i, scelto);
        EXPECT_EQ(conto(i), i >= 5 && i <= 7 ? "401.01.0002 Stipendi cooperanti" : "203.05.0001 Debiti v/partner");
        const std::string dove = combo(std::min(i + 1, kSelettori - 1));
        EXPECT_EQ(pagina.focus(), dove);
        EXPECT_EQ(pagina.combo(dove).lineEdit()->selectedText().toStdString(), pagina.combo(dove).Text());
    }
}

TEST_F(BustePagaLettura, EachPickerSelectsItsTextWhenTheFocusComes) {
    apri();
    for (int i = 0; i < kSelettori; ++i) {
        pagina.combo(combo(i)).setFocus();
        EXPECT_EQ(pagina.combo(combo(i)).lineEdit()->selectedText().toStdString(), conto(i)) << i;
        EXPECT_NE(conto(i), "");
    }
}

TEST_F(BustePagaLettura, ARowOfAListWhoseAccountHasNoTextCanBePicked) {
    esegui("update conti set Contoreport = null where IdConto = 1092");
    apri();
    controls::DataCombo& lista = pagina.combo(combo(8));
    ASSERT_EQ(lista.itemText(0), "");
    pagina.pick(combo(8), "");
    salva();
    EXPECT_EQ(valore("select IdAltriFondiP from TipoAnagraficaCPartite where id = 4"), "1092");
}

TEST_F(BustePagaLettura, AnAccountWithoutMasterProjectOrKeyIsNotOnOffer) {
    apri();
    const int prima = pagina.combo(combo(8)).count();
    for (const char* colonna : {"idmastro", "IDProgetto", "idchiave"}) {
        esegui("update conti set idmastro = 2, IDProgetto = 10000001, idchiave = '203.03.0004' where IdConto = 1092");
        esegui(std::string("update conti set ") + colonna + " = null where IdConto = 1092");
        riapri();
        EXPECT_EQ(pagina.combo(combo(8)).count(), prima - 1) << colonna;
    }
}

TEST_F(BustePagaLettura, ATypeWithoutANameLeavesTheFormerOne) {
    esegui("update tipoanagrafica set TipoAnagrafe = null where IdTipoAnagrafica = 5");
    apri();
    scegli(5);
    EXPECT_EQ(pagina.text("Titolo"), "Dipendenti");
    EXPECT_EQ(conto(3), "Debiti v/Inps gestione separata");
    salva();
    EXPECT_EQ(valore("select IdInpsP from TipoAnagraficaCPartite where id = 5"), "1090") << "it is the row read last";
}

TEST_F(BustePagaLettura, ADoubleClickWhereTheRowsHaveGoneReadsNothing) {
    apri();
    prendi(0, 1099);
    esegui("delete from tipoanagrafica");
    salva();
    ASSERT_EQ(pagina.rows("DataGrid1"), 0);
    const Riga mostrati = conti();
    const support::StatementRecorder recorder;
    QTest::mouseDClick(pagina.grid("DataGrid1").viewport(), Qt::LeftButton);
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(conti(), mostrati);
}

TEST_F(BustePagaLettura, NullGroupsOfARowAreWrittenWithItsAccounts) {
    for (const char* colonna : {"IdGIrapE", "IdGInpsE", "IdGInailE"}) {
        esegui(std::string("update TipoAnagraficaCPartite set ") + colonna + " = null where id = 4");
    }
    apri();
    scegli(4);
    EXPECT_EQ(conti(), (Riga{nomeDi(1080), nomeDi(1082), nomeDi(1083), nomeDi(1089), nomeDi(1091), nomeDi(1185),
                             nomeDi(1187), nomeDi(1189), nomeDi(1084)}));
    salva();
    EXPECT_EQ(letti("IdGInpsE, IdGInailE", 4), (Riga{"45", "45"}));
}

/// A column of the row that is read, and the picker that shows it.
struct Nullo {
    const char* colonna;
    int indice;
};
std::ostream& operator<<(std::ostream& out, const Nullo& nullo) {
    return out << nullo.colonna;
}

class BustePagaNulli : public BustePagaForm, public testing::WithParamInterface<Nullo> {};

TEST_P(BustePagaNulli, ANullLeavesTheAccountOfTheRowReadBefore) {
    const auto& [colonna, indice] = GetParam();
    esegui("update TipoAnagraficaCPartite set IdIrpef = 1081, IdIrpefReg = 1081, IdIrpefCom = 1081, IdInpsP = 1081, "
           "IdInailP = 1081, IdCInpsE = 1081, IdCInailE = 1081, IdCIrapE = 1081, IdIrapP = 1081 where id = 5");
    esegui(std::string("update TipoAnagraficaCPartite set ") + colonna + " = null where id = 5");
    apri();
    Riga attesi(kSelettori, nomeDi(1081));
    attesi.at(static_cast<std::size_t>(indice)) = conto(indice);
    scegli(5);
    EXPECT_EQ(conti(), attesi);
    salva();
    const std::string scritto = valore(std::string("select ") + colonna + " from TipoAnagraficaCPartite where id = 5");
    EXPECT_EQ(scritto, indice < 7
                           ? valore(std::string("select ") + colonna + " from TipoAnagraficaCPartite where id = 4")
                           : "0");
}

TEST_P(BustePagaNulli, ANullInTheFirstRowReadIsNothing) {
    const auto& [colonna, indice] = GetParam();
    esegui(std::string("update TipoAnagraficaCPartite set ") + colonna + " = null where id = 4");
    apri();
    Riga attesi = {nomeDi(1080), nomeDi(1082), nomeDi(1083), nomeDi(1089), nomeDi(1091),
                   nomeDi(1185), nomeDi(1187), nomeDi(1189), nomeDi(1084)};
    attesi.at(static_cast<std::size_t>(indice)).clear();
    EXPECT_EQ(conti(), attesi);
    salva();
    EXPECT_EQ(valore(std::string("select ") + colonna + " from TipoAnagraficaCPartite where id = 4"), "0");
}

INSTANTIATE_TEST_SUITE_P(Di, BustePagaNulli,
                         testing::Values(Nullo{"IdIrpef", 0}, Nullo{"IdIrpefReg", 1}, Nullo{"IdIrpefCom", 2},
                                         Nullo{"IdInpsP", 3}, Nullo{"IdInailP", 4}, Nullo{"IdCInpsE", 5},
                                         Nullo{"IdCInailE", 6}, Nullo{"IdCIrapE", 7}, Nullo{"IdIrapP", 8}),
                         [](const auto& test) { return std::string(test.param.colonna); });

} // namespace
} // namespace vabo
