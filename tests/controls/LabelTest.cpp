#include "controls/Label.h"

#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

TEST(Label, ASpokenNameHasNeitherMnemonicNorColon) {
    EXPECT_EQ(controls::spokenName("&Nome utente :"), "Nome utente");
    EXPECT_EQ(controls::spokenName("  Scadenze  "), "Scadenze");
    EXPECT_EQ(controls::spokenName("::"), "");
}

TEST(Label, ACaptionNamesTheControlOfItsLabel) {
    QLabel label;
    controls::setCaption(label, "Descripción:");
    EXPECT_EQ(label.text(), "Descripción:") << "without a control too";
    QLineEdit field;
    label.setBuddy(&field);
    controls::setCaption(label, "Descrição:");
    EXPECT_EQ(label.text(), "Descrição:");
    EXPECT_EQ(field.accessibleName(), "Descrição");
}

} // namespace
