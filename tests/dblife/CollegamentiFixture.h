#pragma once

#include "ado/LinkFile.h"
#include "dblife/CollegaTabelleLinked.h"
#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/RecordedForms.h"
#include "support/TestWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

/// Records what the run tells of its tables.
class VistaRegistrata : public vabo::VistaCollegamenti {
public:
    void MostraTabella(const std::string& nome) override {
        nomi.push_back(nome);
        if (alla) {
            alla(nome);
        }
    }
    void MostraParte(double parte) override { parti.push_back(parte); }
    void Aggiorna() override { ++aggiornamenti; }

    std::vector<std::string> nomi;
    std::vector<double> parti;
    int aggiornamenti = 0;
    std::function<void(const std::string&)> alla; ///< what the test does at each table
};

/// A table of a local file as a test writes it and reads it.
struct Voce {
    std::string type, name;
    ado::Value provider;

    bool operator==(const Voce&) const = default;
};

inline std::string stampata(const ado::Value& valore) {
    const auto* testo = std::get_if<std::string>(&valore.variant());
    return testo == nullptr ? "null" : *testo;
}

inline void PrintTo(const Voce& voce, std::ostream* out) {
    *out << voce.type << " " << voce.name << " -> " << stampata(voce.provider);
}

inline constexpr const char* kPrima = "ODBC;DATABASE=altra;UID=UID=sa;PWD=;DSN=Tlv_server";
inline constexpr const char* kAurora = "ODBC;DATABASE=VaBoDatiAurora;UID=UID=sa;PWD=;DSN=Tlv_server";
inline constexpr const char* kTemp = "ODBC;DATABASE=VaBoDatiTemp;UID=;PWD=;DSN=Tlv_Temp";

/// The sample workstation, with the company taken up and local files of the test's own.
class CollegamentiTest : public testing::Test {
protected:
    CollegamentiTest() {
        vabo::NomeDatabase = support::kCompany;
        vabo::CartellaFile = "C:\\Vabo\\Files";
        vabo::PercorsoFileLocale = "C:\\Vabo\\Files\\prova.mdb";
        workstation.removeFile(kPersonalizzate);
        // On the wire the server has another name, and its text another login.
        server("UID=sa;PWD=Campione-2024;");
    }

    void server(const std::string& login) const {
        workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "Driver=SQL Server;Server=SRV\\prova;" + login + "\r\n");
    }
    std::filesystem::path real(const std::string& path) const { return workstation.driveC().real(path); }
    void make(const std::string& path, const std::vector<Voce>& tables) const {
        ado::LinkFile file = ado::LinkFile::create(real(path));
        for (const Voce& table : tables) {
            file.add(table.type, table.name, table.provider);
        }
    }
    void main(const std::vector<Voce>& tables) const { make(kLocale, tables); }
    std::vector<Voce> tables(const std::string& path = kLocale) const {
        ado::LinkFile file(real(path));
        std::vector<Voce> all;
        for (const ado::LinkFile::Entry& entry : file.entries()) {
            all.push_back({stampata(entry.type), stampata(entry.name), file.provider(entry.id)});
        }
        return all;
    }
    /// The provider strings alone.
    std::vector<std::string> links(const std::string& path = kLocale) const {
        std::vector<std::string> all;
        for (const Voce& table : tables(path)) {
            all.push_back(stampata(table.provider));
        }
        return all;
    }

    static constexpr const char* kLocale = "C:\\Vabo\\Files\\prova.mdb";
    static constexpr const char* kPersonalizzate = "C:\\Vabo\\Files\\Tlv_personalizzate.mdb";

    support::TestWorkstation workstation;
    support::DialogScript noBox;
    support::RecordedForms forms;
    VistaRegistrata vista;
};

using Testi = std::vector<std::string>;
