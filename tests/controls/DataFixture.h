#pragma once

#include "controls/DataControl.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>

/// A table of fruits on the sample server, and a data control over it.
class DataFixture : public testing::Test {
protected:
    DataFixture() {
        workstation.run(support::kCompany, "create table frutta (id int identity(1,1) not null primary key, "
                                           "nome nvarchar(50) null, prezzo float null)");
        workstation.run(support::kCompany, "insert into frutta (nome, prezzo) values ('Mela', 1.5), ('Pera', 2), "
                                           "('Albicocca', null), (null, 4), ('Pera', 9)");
        source.ConnectionString = "Driver=SQL Server;Server=" + workstation.serverName() +
                                  ";UID=sa;PWD=Campione-2024;DATABase=" + support::kCompany;
        source.RecordSource = "select id, nome, prezzo from frutta order by id";
    }

    support::TestWorkstation workstation;
    controls::DataControl source;
};
