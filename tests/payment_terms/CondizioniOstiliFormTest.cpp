// Hostile texts in the fields of the form of payment terms.

#include "CondizioniForm.h"

#include <QLineEdit>

namespace vabo {
namespace {

constexpr const char* kRifiutato = "Multiple-step operation generated errors. Check each status value.";

/// The texts that a field is left with in these tests.
const Testi& ostili() {
    static const Testi testi = {
        "\"",   ";",        "x'; delete from CondizioniPagamento --", "--", "/* x", "*/", "'", "\x01\x1b\x7f",
        "a\tb", "città ’ß€"};
    return testi;
}

TEST_F(FormCondizioni, HostileTextsInTheNameAreStoredAsTheyStand) {
    apri();
    for (const std::string& ostile : ostili()) {
        SCOPED_TRACE(ostile);
        const int quante = quanti("CondizioniPagamento");
        componi("Fine mese", "", {}, "Assegno");
        campo("Descrizione").setText(ostile);
        invio();
        EXPECT_EQ(ultima()[0], ostile);
        EXPECT_EQ(quanti("CondizioniPagamento"), quante + 1);
        EXPECT_EQ(campi(), kVuota);
    }
    componi("Fine mese", "", {}, "Assegno");
    campo("Descrizione").setText(std::string(4'000, '\''));
    invio();
    EXPECT_EQ(ultima()[0], std::string(50, '\''));
}

TEST_F(FormCondizioni, HostileTextsInTheNumbersAreRefusedByTheirColumnsAndTold) {
    apri();
    const int quante = quanti("CondizioniPagamento");
    const Riga ultimaPrima = condizione("IDPagamento = 14");
    Testi testi = ostili();
    testi.emplace_back(4'000, 'x');
    testi.emplace_back(4'000, '9');
    Testi numeri = {"RataAnticipo"};
    for (int i = 1; i <= 12; ++i) {
        numeri.push_back(scadenza(i));
    }
    for (const std::string& ostile : testi) {
        for (const std::string& nome : numeri) {
            SCOPED_TRACE(ostile.substr(0, 20) + " in " + nome);
            scegli(14);
            campo(nome).setText(ostile);
            vaiA("Descrizione");
            const Riga prima = campi();
            EXPECT_EQ(testo(nome), QLineEdit(QString::fromStdString(ostile)).text().toStdString());
            script.expectMessage(kRifiutato);
            invio();
            EXPECT_TRUE(script.allShown());
            EXPECT_EQ(campi()[0], prima[0]) << "the fields stay";
            EXPECT_EQ(campi()[1], prima[1]);
            EXPECT_EQ(campi()[2], prima[2]);
            EXPECT_EQ(campi()[3], prima[3]);
            EXPECT_EQ(campi()[4], prima[4]);
            EXPECT_EQ(campi()[5], QString::fromStdString(prima[5]).left(50).toStdString()) << "the name is cut";
            EXPECT_EQ(fuoco(), "Descrizione");
        }
    }
    EXPECT_EQ(quanti("CondizioniPagamento"), quante);
    EXPECT_EQ(condizione("IDPagamento = 14"), ultimaPrima);
}

TEST_F(FormCondizioni, HostileTextsInTheNumberOfInstalmentsAreWorkedOutAnew) {
    apri();
    Testi testi = ostili();
    testi.emplace_back(4'000, '9');
    for (const std::string& ostile : testi) {
        scegli(3);
        vaiA("NRrate");
        campo("NRrate").setText(ostile);
        vaiA("Descrizione");
        EXPECT_EQ(testo("NRrate"), "3") << ostile;
        invio();
        EXPECT_EQ(condizione("IDPagamento = 3")[1], "3") << ostile;
    }
}

TEST_F(FormCondizioni, HostileTextsInTheCombosAreTakenBack) {
    apri();
    Testi testi = ostili();
    testi.emplace_back(4'000, 'x');
    for (const std::string& ostile : testi) {
        for (const char* combo : {"IDDecorrenza", "IdTipoRimessa"}) {
            vaiA("Chiudi");
            vaiA(combo);
            pagina.combo(combo).lineEdit()->setText(QString::fromStdString(ostile));
            vaiA("NRrate");
            EXPECT_EQ(pagina.combo(combo).Text(), "Seleziona");
        }
    }
}

} // namespace
} // namespace vabo
