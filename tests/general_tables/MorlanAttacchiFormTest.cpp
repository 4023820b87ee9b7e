// Nothing typed on the general tables console gets into a statement: the statements sent are the same as without it.

#include "MorlanFixture.h"
#include "support/Attacks.h"

#include <QLineEdit>

namespace vabo {
namespace {

class MorlanAttacchi : public MorlanForm {
protected:
    /// Some attacks of each kind. Not all, since each store reads its grid again, which is slow.
    static std::vector<std::string> alcuni() {
        constexpr std::size_t kPasso = 9;
        const std::vector<std::string> tutti = support::attacks();
        std::vector<std::string> scelti = {"'; delete from conti --", "0 where 1=1 --"};
        for (std::size_t i = 0; i < tutti.size(); i += kPasso) {
            scelti.push_back(tutti[i]);
        }
        return scelti;
    }
    static void incolla(QLineEdit& campo, const std::string& testo) {
        campo.clear();
        campo.insert(QString::fromStdString(testo));
    }
    /// The statements sent when a row is chosen, that text typed into the picker, and Enter pressed.
    std::vector<std::string> salvando(const char* griglia, const char* riga, const char* selettore,
                                      const std::string* digitato = nullptr) {
        const support::StatementRecorder recorder;
        scegli(griglia, riga);
        EXPECT_EQ(fuoco(), selettore);
        if (digitato != nullptr) {
            incolla(*combo(selettore).lineEdit(), *digitato);
        }
        gui.press(Qt::Key_Return);
        return recorder.texts();
    }
    std::vector<Riga> conti() const { return posto.rows(support::kCompany, "select * from conti order by IdConto"); }
};

struct Selettore {
    int scheda;
    const char* griglia;
    const char* riga;
    const char* combo;
};

class MorlanAttacchiAlSelettore : public MorlanAttacchi, public testing::WithParamInterface<Selettore> {};

TEST_P(MorlanAttacchiAlSelettore, AStoreSendsWhatItSendsWithoutThem) {
    const auto& [numero, griglia, riga, selettore] = GetParam();
    apri();
    scheda(numero);
    const auto prima = conti();
    const auto attese = salvando(griglia, riga, selettore);
    ASSERT_FALSE(attese.empty());
    for (const std::string& attacco : alcuni()) {
        EXPECT_EQ(salvando(griglia, riga, selettore, &attacco), attese)
            << testing::PrintToString(attacco.substr(0, 60));
    }
    EXPECT_EQ(conti(), prima);
}

INSTANTIATE_TEST_SUITE_P(Selettori, MorlanAttacchiAlSelettore,
                         testing::Values(Selettore{1, "DataGrid2", "4", "DCBItem1"},
                                         Selettore{2, "DataGrid4", "2", "DCBitem2"},
                                         Selettore{4, "DataGrid11", "3", "DCBItems3"},
                                         Selettore{5, "DataGridPersonale", "3", "DCBitems4"}),
                         [](const auto& test) { return std::string(test.param.combo); });

TEST_F(MorlanAttacchi, APickedTreatmentSendsWhatItSendsWithoutThemInItsFields) {
    apri();
    scheda(4);
    const auto prendendo = [this] {
        const support::StatementRecorder recorder;
        prendi("DCBitem5", "Imponibile 10%");
        return recorder.texts();
    };
    prendendo(); // once without counting, so that the row has this account each time after
    const auto attese = prendendo();
    ASSERT_FALSE(attese.empty());
    for (const std::string& attacco : alcuni()) {
        for (const char* campo : {"Aliquota", "Detrazione", "Sigla"}) {
            incolla(controllo<QLineEdit>(campo), attacco);
        }
        EXPECT_EQ(prendendo(), attese) << testing::PrintToString(attacco.substr(0, 60));
    }
    EXPECT_EQ(posto.rows(support::kCompany, "select idTipo, Aliquota, Sigla, Detrazione from IvaAliquotaStandard"),
              (std::vector<Riga>{{"3", "10,00", "10", "100,00"}}));
}

TEST_F(MorlanAttacchi, TypedAsATreatmentTheySendNothingAndGoBack) {
    apri();
    scheda(4);
    auto& trattamenti = combo("DCBitem5");
    const std::string mostrato = trattamenti.Text();
    const auto prima = posto.row(support::kCompany, "select * from IvaAliquotaStandard");
    for (const std::string& attacco : alcuni()) {
        for (const Qt::Key uscita : {Qt::Key_Return, Qt::Key_Tab}) {
            SCOPED_TRACE(testing::PrintToString(attacco.substr(0, 60)));
            trattamenti.setFocus();
            incolla(*trattamenti.lineEdit(), attacco);
            const support::StatementRecorder recorder;
            gui.press(uscita);
            controllo<QLineEdit>("Sigla").setFocus();
            EXPECT_TRUE(recorder.texts().empty());
            EXPECT_EQ(trattamenti.Text(), mostrato);
        }
    }
    EXPECT_EQ(posto.row(support::kCompany, "select * from IvaAliquotaStandard"), prima);
}

TEST_F(MorlanAttacchi, WhatARowIsCalledTakesNoText) {
    apri();
    const auto provando = [this](const char* nome) {
        const std::string prima = testo(nome);
        auto& campo = controllo<controls::TextBox>(nome);
        campo.setFocus();
        ASSERT_EQ(fuoco(), nome);
        campo.selectAll();
        gui.type("'; --\x01");
        gui.press(Qt::Key_Delete);
        EXPECT_EQ(testo(nome), prima);
        EXPECT_FALSE(prima.empty());
    };
    scheda(1);
    scegli("DataGrid2", "8"); // a row that takes economic accounts alone
    provando("Descrizione");
    scheda(2);
    provando("Controllo");
    scegli("DataGrid4", "7");
    provando("tipoanagrafe");
}

} // namespace
} // namespace vabo
