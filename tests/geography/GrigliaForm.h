#pragma once

#include "app/Forms.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "support/FormPage.h"

#include <QApplication>
#include <QTest>

namespace vabo {

using Testi = std::vector<std::string>;

/// One of the forms with a grid and the fields of a row, over the first sample company. What it comes back to is a bare
/// form. The names of its rows stand in the grid's second column.
class GrigliaForm : public AziendaAperta {
protected:
    /// `nome` is what the form stack calls it.
    GrigliaForm(const char* form, const char* nome) : form(form), nome(nome), pagina(gui, form) {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }

    void apri() {
        PilaForm = {"Avvio_Azienda", nome};
        CimaForm = 1;
        pagina.show();
    }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    std::string scelto(const std::string& nome) const {
        return pagina.control<controls::TextBox>(nome).selectedText().toStdString();
    }
    std::string combo() const { return pagina.combo("DataCombo1").Text(); }
    std::string fuoco() const { return pagina.focus(); }
    void vaiA(const std::string& nome) const {
        pagina.control(nome).setFocus();
        support::Gui::handleEvents();
    }
    /// Presses a key until that control has the focus.
    void premiFinoA(const std::string& nome, Qt::Key tasto) const {
        constexpr int kPiuDelleFermate = 20;
        for (int i = 0; i < kPiuDelleFermate && fuoco() != nome; ++i) {
            gui.press(tasto);
        }
        ASSERT_EQ(fuoco(), nome);
    }
    /// Enter, to the search of the combo where it is open.
    void invio() const {
        QWidget* trovati = QApplication::activePopupWidget();
        if (trovati != nullptr) {
            QTest::keyClick(trovati, Qt::Key_Return);
        }
        pagina.comeToFront();
        if (trovati == nullptr) {
            gui.press(Qt::Key_Return);
        }
    }
    /// The value of a field by keyboard, from that field on.
    void campo(const std::string& lettere) const {
        gui.type(lettere);
        invio();
    }
    /// A row of the list of that name, which must be there.
    int rigaDi(const std::string& nome) const {
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            if (pagina.cell("DataGrid1", riga, 1) == nome) {
                return riga;
            }
        }
        throw std::runtime_error("no row " + nome);
    }
    /// With the keyboard, from whatever row the grid stands on.
    void scegli(const std::string& nome) const {
        vaiA("DataGrid1");
        pagina.grid("DataGrid1").selectRow(rigaDi(nome));
        gui.press(Qt::Key_Space);
    }
    /// With the mouse.
    void clicca(const std::string& nome) const {
        controls::DataGrid& griglia = pagina.grid("DataGrid1");
        const QModelIndex cella = griglia.model()->index(rigaDi(nome), 1);
        griglia.scrollTo(cella);
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, Qt::NoModifier, griglia.visualRect(cella).center());
        support::Gui::handleEvents();
    }
    /// The name in the row on which the grid stands.
    std::string corrente() const {
        const QModelIndex qui = pagina.grid("DataGrid1").currentIndex();
        return qui.isValid() ? pagina.cell("DataGrid1", qui.row(), 1) : std::string();
    }
    int quanti(const std::string& tabella) const { return std::stoi(valore("select count(*) from " + tabella)); }

    /// What a column of the grid has; a width of 0 where it is hidden.
    struct Colonna {
        const char* titolo;
        int twips;
    };
    void verificaColonne(const std::vector<Colonna>& colonne) const {
        ASSERT_EQ(pagina.grid("DataGrid1").ColumnCount(), static_cast<int>(colonne.size()));
        for (int i = 0; i < static_cast<int>(colonne.size()); ++i) {
            const auto colonna = pagina.grid("DataGrid1").Columns(i);
            const Colonna& attesa = colonne[static_cast<std::size_t>(i)];
            EXPECT_TRUE(colonna.Locked()) << i;
            EXPECT_EQ(colonna.Caption(), attesa.titolo);
            EXPECT_EQ(colonna.Visible(), attesa.twips > 0) << i;
            if (colonna.Visible()) {
                EXPECT_EQ(colonna.Width(), attesa.twips) << i;
            }
        }
    }

    const char* form;
    const char* nome;
    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina;
};

inline constexpr const char* kFiltroRifiutato = "Arguments are of the wrong type, are out of acceptable range, or are "
                                                "in conflict with one another.";

} // namespace vabo
