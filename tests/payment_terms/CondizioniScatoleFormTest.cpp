// Both forms with the program's own boxes: one that closes gives the field its focus back without the event of it.

#include "CondizioniForm.h"
#include "support/RealBoxes.h"

namespace vabo {
namespace {

using support::RealBoxes;

constexpr const char* kTenuta = "Lock request time out period exceeded.";

TEST_F(FormCondizioni, BehindTheBoxOfARefusedSaveTheTypedNameStays) {
    apri();
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        scegli(3);
        vaiA("Descrizione");
        ASSERT_EQ(testo("Descrizione"), "Rimessa diretta a 30-60-90 Fine mese");
        gui.type("Nome mio");
        scatole.answered = risposta;
        scatole.texts.clear();
        {
            const auto altro = posto.engineSession(support::kCompany);
            const auto tenuta = altro->hold("select * from CondizioniPagamento where IDPagamento = 3");
            invio();
            RealBoxes::settle(&gui.form(kCondizioni));
        }
        EXPECT_EQ(scatole.texts, Testi{kTenuta});
        EXPECT_EQ(testo("Descrizione"), "Nome mio") << "it isn't worked out again";
        EXPECT_EQ(fuoco(), "Descrizione");
    }
    invio();
    EXPECT_EQ(condizione("IDPagamento = 3")[0], "Nome mio");
    EXPECT_EQ(campi(), kVuota);
}

TEST_F(FormDecorrenze, BehindTheBoxOfARefusedSaveTheNameIsNotLengthened) {
    apri();
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        scegli(3);
        vaiA("Descrizione");
        const std::string nome = testo("Descrizione");
        scatole.answered = risposta;
        scatole.texts.clear();
        {
            const auto altro = posto.engineSession(support::kCompany);
            const auto tenuta = altro->hold("select * from CondizioniPagamentoDecorrenza where IDDecorrenza = 3");
            invio();
            RealBoxes::settle(&gui.form(kDecorrenze));
        }
        EXPECT_EQ(scatole.texts, Testi{kTenuta});
        EXPECT_EQ(testo("Descrizione"), nome);
        EXPECT_EQ(fuoco(), "Descrizione");
    }
}

TEST_F(FormDecorrenze, AMonthOutOfRangeIsToldOnceByKeyAndByMouse) {
    apri();
    RealBoxes scatole;
    for (const bool conIlMouse : {false, true}) {
        scegli(5);
        campo("Mese1").setText("14");
        vaiA("Mese3");
        scatole.texts.clear();
        if (conIlMouse) {
            scatole.click(campo("Descrizione"));
        } else {
            invio();
            RealBoxes::settle(&gui.form(kDecorrenze));
        }
        EXPECT_EQ(scatole.texts, Testi{"Subscript out of range"});
        EXPECT_EQ(testo("Descrizione"), "Sc.il 10 - 25 del mese");
        EXPECT_EQ(fuoco(), "Descrizione");
    }
}

} // namespace
} // namespace vabo
