#pragma once

// The statements that the console sends, blanks and capitals as they are, with sample values where a value is joined
// in.

namespace engine::samples {

struct Quoted {
    const char* name;
    const char* text;
    int parseError = 0; ///< the number of the error that refuses the text before anything runs
};

inline constexpr Quoted kStatements[] = {
    {"configureMemory",
     "EXEC sys.sp_configure N'show advanced options', N'1'  RECONFIGURE WITH OVERRIDE\r\n EXEC"
     " sys.sp_configure N'min memory per query (KB)', N'10240'\r\n RECONFIGURE WITH OVERRIDE \r\n EXEC"
     " sys.sp_configure N'show advanced options', N'0'  RECONFIGURE WITH OVERRIDE"},
    {"branchRow", "Select * from Sede"},
    {"terminalsWithoutName", "delete from link_programmaTerminale where Nometerminale = N'' or Nometerminale is null"},
    {"terminalsWithoutNameLower",
     "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null"},
    {"terminalLike", "Select * from link_programmaTerminale where   Nometerminale like 'PC01'"},
    {"companiesByDatabase", "Select * from link_programma  order by dbname  "},
    {"terminalOfCompany",
     "Select * from link_programmaterminale where not nometerminale = N'' and   nometerminale = 'PC01'"},
    {"companiesByNumber", "Select * from link_programma  order by id"},
    {"companyByNumber", "Select * from link_programma  where   id = 3"},
    {"companyDatabases",
     "SELECT * FROM master.dbo.sysdatabases where name like 'vabodati%' and not name like '%azienda%'"},
    {"companyByDatabase", "Select * from link_programma where  dbname='VaBoDatiProva'"},
    {"databaseByName", "SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiProva'"},
    {"companyLikeDatabase", "Select * from link_programma where dbname like 'VaBoDatiProva'"},
    {"terminalsNull", "delete from link_programmaTerminale where nometerminale is null"},
    {"terminalEqual", "Select * from link_programmaTerminale where   Nometerminale = 'PC01'"},
    {"terminalForget", "update link_programmaTerminale set ultimo = 0 where   nometerminale = 'PC01'"},
    {"terminalRemember", "update link_programmaTerminale set ultimo = 3 where   nometerminale = 'PC01'"},
    {"loginName", "select * from AbilitazioneAccessi where  NomeUtente = 'mario'"},
    {"loginNameAndPassword",
     "select * from AbilitazioneAccessi where  NomeUtente = 'mario' and  PaswUtente = 'segreto'"},
    {"firstPassword", "update AbilitazioneAccessi set PaswUtente = 'segreto' where idautonumber =  2"},
    {"companyList",
     "select"
     " id,NomeAzienda,Stringa_connessione_sql,tlv_access,tlv_sql,wzzip,wzunzip,Nserver,dbname,nRoot,Npassw"
     " from link_programma Order by id"},
    {"languageTable", "Create table LinguaClient (id int null, Lingua Nvarchar(2) Null )"},
    {"languageRow", "select * from LinguaClient where id = 1"},
    {"queryTimeout", "sp_configure 'query timeout',0 RECONFIGURE"},
    {"temporaryDatabase",
     "IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiTemp')  CREATE"
     " DATABASE [VaBoDatiTemp]  ON (NAME = N'VaBoDatiTemp_dat', FILENAME ="
     " 'C:\\vabo\\sedi\\VaBoDatiTemp.mdf' ,  FILEGROWTH = 10%) LOG ON (NAME = N'VaBoDatiTemp_log',"
     " FILENAME = 'C:\\vabo\\sedi\\VaBoDatiTemp.ldf' , SIZE = 2, FILEGROWTH = 10%) COLLATE"
     " Latin1_General_CI_AS"},
    {"controlDatabase",
     "IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiAzienda')  CREATE"
     " DATABASE [VaBoDatiAzienda]  ON (NAME = N'VaBoDatiAzienda_dat', FILENAME ="
     " N'VaBoDatiAzienda.mdf' ,  FILEGROWTH = 10%) LOG ON (NAME = N'VaBoDatiAzienda_log', FILENAME ="
     " N'VaBoDatiAzienda.ldf' , SIZE = 2, FILEGROWTH = 10%) COLLATE Latin1_General_CI_AS"},
    {"temporaryAutoclose", " sp_dboption N'VaBoDatiTemp', N'autoclose', N'true'"},
    {"temporaryBulkcopy", " sp_dboption N'VaBoDatiTemp', N'bulkcopy', N'true'"},
    {"temporaryTruncLog", " sp_dboption N'VaBoDatiTemp', N'trunc. log', N'true'"},
    {"temporaryTornPageDetection", " sp_dboption N'VaBoDatiTemp', N'torn page detection', N'true'"},
    {"temporaryReadOnly", " sp_dboption N'VaBoDatiTemp', N'read only', N'false'"},
    {"temporaryDboUse", " sp_dboption N'VaBoDatiTemp', N'dbo use', N'false'"},
    {"temporarySingle", " sp_dboption N'VaBoDatiTemp', N'single', N'false'"},
    {"temporaryAutoshrink", " sp_dboption N'VaBoDatiTemp', N'autoshrink', N'true'"},
    {"temporaryAnsiNullDefault", " sp_dboption N'VaBoDatiTemp', N'ANSI null default', N'false'"},
    {"temporaryRecursiveTriggers", " sp_dboption N'VaBoDatiTemp', N'recursive triggers', N'false'"},
    {"temporaryAnsiNulls", " sp_dboption N'VaBoDatiTemp', N'ANSI nulls', N'false'"},
    {"temporaryConcatNullYieldsNull", " sp_dboption N'VaBoDatiTemp', N'concat null yields null', N'false'"},
    {"temporaryCursorCloseOnCommit", " sp_dboption N'VaBoDatiTemp', N'cursor close on commit', N'false'"},
    {"temporaryDefaultToLocalCursor", " sp_dboption N'VaBoDatiTemp', N'default to local cursor', N'false'"},
    {"temporaryQuotedIdentifier", " sp_dboption N'VaBoDatiTemp', N'quoted identifier', N'false'"},
    {"temporaryAnsiWarnings", " sp_dboption N'VaBoDatiTemp', N'ANSI warnings', N'false'"},
    {"temporaryAutoCreateStatistics", " sp_dboption N'VaBoDatiTemp', N'auto create statistics', N'true'"},
    {"temporaryAutoUpdateStatistics", " sp_dboption N'VaBoDatiTemp', N'auto update statistics', N'true'"},
    {"controlAutoclose", "  sp_dboption N'VaBoDatiAzienda', N'autoclose', N'true'"},
    {"controlBulkcopy", " sp_dboption N'VaBoDatiAzienda', N'bulkcopy', N'true'"},
    {"controlTruncLog", " sp_dboption N'VaBoDatiAzienda', N'trunc. log', N'true'"},
    {"controlTornPageDetection", " sp_dboption N'VaBoDatiAzienda', N'torn page detection', N'true'"},
    {"controlReadOnly", " sp_dboption N'VaBoDatiAzienda', N'read only', N'false'"},
    {"controlDboUse", " sp_dboption N'VaBoDatiAzienda', N'dbo use', N'false'"},
    {"controlSingle", " sp_dboption N'VaBoDatiAzienda', N'single', N'false'"},
    {"controlAutoshrink", " sp_dboption N'VaBoDatiAzienda', N'autoshrink', N'true'"},
    {"controlAnsiNullDefault", " sp_dboption N'VaBoDatiAzienda', N'ANSI null default', N'false'"},
    {"controlRecursiveTriggers", " sp_dboption N'VaBoDatiAzienda', N'recursive triggers', N'false'"},
    {"controlAnsiNulls", " sp_dboption N'VaBoDatiAzienda', N'ANSI nulls', N'false'"},
    {"controlConcatNullYieldsNull", " sp_dboption N'VaBoDatiAzienda', N'concat null yields null', N'false'"},
    {"controlCursorCloseOnCommit", " sp_dboption N'VaBoDatiAzienda', N'cursor close on commit', N'false'"},
    {"controlDefaultToLocalCursor", " sp_dboption N'VaBoDatiAzienda', N'default to local cursor', N'false'"},
    {"controlQuotedIdentifier", " sp_dboption N'VaBoDatiAzienda', N'quoted identifier', N'false'"},
    {"controlAnsiWarnings", " sp_dboption N'VaBoDatiAzienda', N'ANSI warnings', N'false'"},
    {"controlAutoCreateStatistics", " sp_dboption N'VaBoDatiAzienda', N'auto create statistics', N'true'"},
    {"controlAutoUpdateStatistics", " sp_dboption N'VaBoDatiAzienda', N'auto update statistics', N'true'"},
    {"companyTable", "CREATE TABLE [link_programma] (  [id] [int] IDENTITY (1, 1) NOT NULL ,  [NomeAzienda] [varchar]"
                     " (255)   NULL ,  [Stringa_connessione_sql] [nvarchar] (255)   NULL ,  [tlv_access] [nvarchar]"
                     " (255)   NULL ,  [tlv_sql] [nvarchar] (255)   NULL ,  [wzzip] [nvarchar] (255)   NULL ,"
                     "  [wzunzip] [nvarchar] (50)   NULL ,  [Nserver] [nvarchar] (250)   NULL ,  [dbname] [nvarchar]"
                     " (50)   NULL ,  [nRoot] [nvarchar] (50)   NULL ,  [Npassw] [nvarchar] (50)   NULL,  [ultimo] bit"
                     " not null default '0' , [nometerminale] [nvarchar] (255)  NULL,  [IndirizzoMdf] nvarchar(250)"
                     " Null,  [IndirizzoLdf] nvarchar(250) Null) "},
    {"terminalTable", "create table link_programmaTerminale  (idAutonumber int NOT NULL IDENTITY (1, 1), Nometerminale"
                      " nvarchar(255) null, ultimo int not null default 0, Version int not null default 0)"},
    {"companiesOfDataSources", "Select * from link_programma ORDER BY ID"},
    {"versionTable", "Create table Version (id int null, Version int not null default 1 )"},
    {"versionRow", "select * from Version where id = 1"},
    {"balanceDateOfProject", "Select * from progetti where id = 10000001"},
    {"stateList", "SELECT * FROM Stati order by descstato"},
    {"branchList", "SELECT E.IdSede, E.Città, E.Indirizzo, E.StatoOProvincia, E.IdStato, S.IdStato, S.DescStato FROM"
                   " ElencoSedi AS E INNER JOIN Stati AS S ON E.IdStato = S.IdStato order by e.idsede"},
    {"branchByNumber", "Select * from ElencoSedi where IdSede = 5"},
    {"stateOfBranch", "Select * from stati where IdStato = 7"},
    {"headquarters", "Select * from  sedecentrale where idsede=1"},
    {"headquartersFolder", "Select * from DirectoryHQ"},
    {"backupFolder", "Select * from Directorybackup"},
    {"branchFolder", "Select * from DirectorySede"},
    {"rightsOfUser", "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio,"
                     " A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita"
                     " from  AbilitazioneAccessi where  NomeUtente = 'mario' and  PaswUtente = 'segreto'"},
    {"rightsOfUserWithoutPassword",
     "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio,"
     " A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita"
     " from  AbilitazioneAccessi where  NomeUtente = 'mario'"},
    {"userList", "Select  idautonumber, NomeUtente, PaswUtente, Administrator, A_Inserisci, A_Cancella, A_Iva,"
                 " A_Bilancio, A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti,"
                 " A_Progetta, Disabilita from  AbilitazioneAccessi order by Administrator, NomeUtente"},
    {"administrators", "select Administrator from  AbilitazioneAccessi where  administrator  = 1"},
    {"otherAdministrators",
     "select Administrator from  AbilitazioneAccessi where  administrator  = 1 and not idautonumber ="
     " 2"},
    {"deleteUser", "delete from AbilitazioneAccessi where IdAutonumber=2"},
    {"saveUser", "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio,"
                 " A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita"
                 " from  AbilitazioneAccessi"},
    {"saveUserByNumber",
     "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio,"
     " A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita"
     " from  AbilitazioneAccessi where idautonumber = 2"},
    {"projectList", "Select id,titolobreve,IdDate from progetti  order by  titolobreve"},
    {"projectDate", "update progetti set iddate = CONVERT(DATETIME, '2004-3-7', 102) where id =10000002"},
    {"projectReopen", "update partitadoppia set definito =0  where idprogettorendiconto =10000002 and datatransazione >"
                      "   CONVERT(DATETIME, '2004-3-7', 102)  "},
    {"projectClose", "update partitadoppia set definito =-1  where idprogettorendiconto =10000002 and  (datareport <"
                     " CONVERT(DATETIME, '2004-3-7', 102) or datareport = CONVERT(DATETIME, '2004-3-7', 102)) and"
                     "  (NOT EXISTS (SELECT  * FROM  Partitadoppia AS B   WHERE (B.numerotransazione ="
                     " partitadoppia.numerotransazione and B.idsede = partitadoppia.idsede) and ( b.idconto = 101 or"
                     " b.idconto = 102 or b.idconto = 101 or b.idconto = 101 or b.idconto = 105 or b.idconto = 101 or"
                     " b.idconto = 101 or b.idconto = 118 or b.idconto = 119 or b.idconto = 127 or b.idconto = 129)))"
                     "  "},
    {"projectAlwaysDefinitive",
     "select * from partitadoppia  where   idprogettorendiconto =10000002 and   (idconto= 202 or"
     "   idconto= 201 or  idconto = 101 or idconto = 102 or idconto = 101 or idconto = 101 or idconto"
     " = 105 or idconto = 101 or idconto = 101 or idconto = 118 or idconto = 119 or idconto = 127 or"
     " idconto = 129 or   seziva>0   or ((importodepositi-importoprelievi = 0  or"
     " importodepositi-importoprelievi is null) and not idvaluta = 1001))"},
    {"projectTransaction",
     "update partitadoppia set definito = -1, datareport = datatransazione where   numerotransazione="
     " 12 and  idsede = 1"},
    {"projectReportedOnDate",
     "select * from partitadoppia  where   idprogettorendiconto =10000002 and  datareport ="
     "  CONVERT(DATETIME, '2004-3-7', 102)   and   ( idconto = 101 or idconto = 102 or idconto = 101"
     " or idconto = 101 or idconto = 105 or idconto = 101 or idconto = 101 or idconto = 118 or idconto"
     " = 119 or idconto = 127 or idconto = 129)"},
    {"branchesWithState", "Select E.idsede,E.città,S.descstato from elencosedi AS E left join stati AS S on"
                          " E.idstato=S.idstato order by città"},
    {"branchLockDate", "SELECT  iddatainvio From  elencosedi   Where  idsede = 5"},
    {"branchLockRow", "Select * from elencosedi where idsede = 5"},
    {"branchReopen", "update partitadoppia set definito =0  where idsedecompetenza =5 and datatransazione >"
                     "   CONVERT(DATETIME, '2004-3-7', 102)   and datatransazione >   CONVERT(DATETIME, '2004-3-7',"
                     " 102)  "},
    {"branchClose", "update partitadoppia set definito =-1  where idsedecompetenza =5 and  (datatransazione <"
                    " CONVERT(DATETIME, '2004-3-7', 102)  )"},
    {"branchAlwaysDefinitive",
     "select * from partitadoppia  where   idsedecompetenza = 5 and   (idconto= 202 or   idconto= 201"
     " or  idconto = 101 or idconto = 102 or idconto = 101 or idconto = 101 or idconto = 105 or"
     " idconto = 101 or idconto = 101 or idconto = 118 or idconto = 119 or idconto = 127 or idconto ="
     " 129 or idconto = 118 or idconto = 119 or idconto = 127 or idconto = 129 or   seziva>0   or"
     " ((importodepositi-importoprelievi = 0  or importodepositi-importoprelievi is null) and not"
     " idvaluta = 1001))"},
    {"branchTransaction", "update partitadoppia set definito = -1 where   numerotransazione= 12 and  idsede = 1"},
    {"counters", "Select * from contatorepd"},
    {"contoHq2", "SELECT  * From TabellaContiUtiliTransfersHq where id = 2 "},
    {"contoHq1", "SELECT  * From TabellaContiUtiliTransfersHq where id = 1 "},
    {"conto18", "SELECT  * From TabellaContiUtili  where id = 18"},
    {"conto19", "SELECT  * From TabellaContiUtili  where id =  19 "},
    {"conto27", "SELECT  * From TabellaContiUtili where id = 27 "},
    {"conto29", "SELECT  * From TabellaContiUtili where id = 29 "},
    {"conto1", "SELECT  * From TabellaContiUtili where id = 1 "},
    {"conto2", "SELECT  * From TabellaContiUtili where id = 2 "},
    {"conto5", "SELECT  * From TabellaContiUtili where id =5 "},
    {"groupOfAccount", "SELECT  IdGruppoVabo From conti where IdConto =101"},
    {"switchRow8", "select * from TabellaUilityConti where id = 8"},
    {"switchRow7", "select * from TabellaUilityConti where id = 7"},
    {"switchRow5", "select * from TabellaUilityConti where id = 5"},
    {"switchRow9", "select * from TabellaUilityConti where id = 9"},
    {"switchRow1", "select * from TabellaUilityConti where id = 1"},
    {"administrativeSeat", "select * from datiGenerali where descrizione ='Sede Amministrativa'"},
    {"generalDatum6", "select * from datiGenerali where id = 6"},
    {"generalDatum7", "select * from datiGenerali where id = 7"},
    {"generalDatum8", "select * from datiGenerali where id = 8"},
    {"generalDatum9", "select * from datiGenerali where id = 9"},
    {"generalDatum10", "select * from datiGenerali where id = 10"},
    {"generalDatum15", "select * from datiGenerali where id = 15"},
    {"usefulAccounts",
     "SELECT T.ID, T.Description, C.NomeConto, P.Type,"
     " P.Number,T.idconto,T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli  FROM (("
     " TabellaContiUtili AS T left JOIN progetti as P ON T.IdProgetto = P.ID) left JOIN gruppivabo ON"
     " T.IDConto1 = gruppivabo.IDGruppo) left JOIN conti AS C  ON T.IDConto = C.IdConto order by T.Id"},
    {"vatAccounts", "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto,"
                    " B.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli  FROM ((ivaTabellaContiUtili AS B LEFT JOIN"
                    " Conti AS C ON B.IDConto = C.IdConto) LEFT JOIN Progetti ON B.IdProgetto = Progetti.ID) left"
                    " join gruppivabo on B.idconto1 = gruppivabo.idgruppo order by B.ID"},
    {"payrollAccounts", "SELECT B.ID, B.Description, C.NomeConto, Progetti.Description,C.idconto,"
                        " B.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli  FROM ((BusteTabellaContiUtili AS B LEFT"
                        " JOIN conti AS C ON B.IDConto = C.IdConto) LEFT JOIN Progetti ON B.IdProgetto = Progetti.ID)"
                        " left join gruppivabo on B.idconto1 = gruppivabo.idgruppo order by B.ID"},
    {"subjectTypes", "SELECT T.IdTipoAnagrafica, T.TipoAnagrafe, T.idconto,C.NomeConto,"
                     " T.idconto1,gruppivabo.idgruppo, gruppivabo.dettagli FROM (tipoanagrafica AS T left join conti"
                     " AS C  on T.idconto=C.idconto) left join gruppivabo on T.idconto1 = gruppivabo.idgruppo order by"
                     " T.IdTipoAnagrafica"},
    {"payrollTableAccounts", "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo,"
                             " gruppivabo.dettagli FROM (bustetabellacontiutili AS T left join conti AS C  on"
                             " T.idconto=C.idconto) left join gruppivabo on T.idconto1 = gruppivabo.idgruppo order by"
                             " T.Description"},
    {"transferTableAccounts", "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo,"
                              " gruppivabo.dettagli FROM (tabellacontiutiliTransfersHQ AS T left join conti AS C  on"
                              " T.idconto=C.idconto) left join gruppivabo on T.idconto1 = gruppivabo.idgruppo order by"
                              " T.Description"},
    {"contributionTableAccounts",
     "SELECT T.Id, T.description, T.idconto,C.NomeConto, T.idconto1,gruppivabo.idgruppo,"
     " gruppivabo.dettagli FROM (tabellacontiutilicontributi AS T left join conti AS C  on"
     " T.idconto=C.idconto) left join gruppivabo on T.idconto1 = gruppivabo.idgruppo order by"
     " T.Description"},
    {"payrollFallback",
     "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli"
     " FROM bustetabellacontiutili order by T.Description",
     105},
    {"transferFallback",
     "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli"
     " FROM tabellacontiutiliTransfersHQ order by T.Description",
     105},
    {"contributionFallback",
     "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli"
     " FROM tabellacontiutilicontributi order by T.Description",
     105},
    {"subjectFallback",
     "SELECT T.Id, T.description, T.idconto, \" as NomeConto, T.idconto1,\" as idgruppo, \" as dettagli"
     " FROM tipoanagrafica order by T.Description",
     105},
    {"pickListA", "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where"
                  "   (IDProgetto = 10000001) and  not (contoreport  Like '%.0') and not exists (select idconto"
                  " from tipoanagrafica where idconto = conti.idconto) ORDER BY  NomeConto"},
    {"pickListB", "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where"
                  "   (IDProgetto = 10000001) and  not (contoreport  Like '%.0') and not exists (select idconto"
                  " from tabellacontiutili where idconto = conti.idconto) ORDER BY  NomeConto"},
    {"pickListC", "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM conti   Where"
                  "   (IDProgetto = 10000001) and  not (contoreport  Like '%.0') and not exists (select idconto"
                  " from TabellaContiUtiliTransfersHq where idconto = conti.idconto) ORDER BY  NomeConto"},
    {"pickListD", "SELECT  Conti.IdConto, Conti.NomeConto + ' ' + Conti.Contoreport as NomeConto FROM  Conti  Where"
                  " not idchiave  like '%.0' and idmastro between 2 and 3 ORDER BY NomeConto"},
    {"usefulAccountRow", "Select * from tabellacontiutili where id = 4"},
    {"subjectTypeRow", "Select * from tipoanagrafica where idtipoanagrafica = 4"},
    {"payrollRow", "Select * from bustetabellacontiutili  where id = 4"},
    {"transferRow", "Select * from tabellacontiutiliTransfersHQ  where id = 4"},
    {"contributionRow", "Select * from tabellacontiutilicontributi  where id = 4"},
    {"vatAccountStore", "update ivaTabellaContiUtili set idconto=101 where id=4"},
    {"vatGroupStore", "update ivaTabellaContiUtili set idconto1=9 where id=4"},
    {"vatProjectStore", "update ivaTabellaContiUtili set idProgetto = 10000001  where id=4"},
    {"payrollAccountRow", "Select * from BusteTabellaContiUtili  where id = 4"},
    {"vatTreatments", "SELECT IdAutoNumber,  Descrizione From IvaTrattamento where idautonumber > 1 and not sigla like"
                      " 'IV%' ORDER BY Descrizione"},
    {"vatStandard", "select * from IvaAliquotaStandard  "},
    {"payrollLiabilityAccounts",
     "SELECT idconto, contoreport + ' ' + Nomeconto as nomeconto from conti where idmastro = 2     and"
     " idprogetto = 10000001 and not idchiave like '%.0' and not exists (select idconto from"
     " tipoanagrafica where tipoanagrafica.idconto = conti.idconto) order by contoreport + ' ' +"
     " Nomeconto"},
    {"payrollCostAccounts",
     "SELECT idconto, contoreport + ' ' + Nomeconto as nomeconto from conti where idmastro = 4     and"
     " idprogetto = 10000001 and not idchiave like '%.0' and not exists (select idconto from"
     " tipoanagrafica where tipoanagrafica.idconto = conti.idconto) order by contoreport + ' ' +"
     " Nomeconto"},
    {"payrollCounterAccounts",
     " SELECT   tipoanagrafica.IdTipoAnagrafica, tipoanagrafica.TipoAnagrafe,  conti.NomeConto,"
     "  TipoAnagraficaCPartite.IdIrpef, TipoAnagraficaCPartite.IdIrpefReg,"
     "  TipoAnagraficaCPartite.IdIrpefCom, TipoAnagraficaCPartite.IdInpsP,"
     "  TipoAnagraficaCPartite.IdInailP, TipoAnagraficaCPartite.IdCInpsE,"
     " TipoAnagraficaCPartite.IdCInailE, TipoAnagraficaCPartite.IdCIrapE,"
     " TipoAnagraficaCPartite.IdGIrapE , TipoAnagraficaCPartite.IdGInpsE,"
     " TipoAnagraficaCPartite.IdGInailE, TipoAnagraficaCPartite.IdIrapP FROM  tipoanagrafica INNER"
     " JOIN TipoAnagraficaCPartite ON tipoanagrafica.IdTipoAnagrafica = TipoAnagraficaCPartite.id"
     "  left JOIN conti ON TipoAnagraficaCPartite.IdIrpef = conti.IdConto order by ID"},
    {"payrollCounterRow", "select * from TipoAnagraficaCPartite where id =4"},
    {"lookupDescription", " select Descrizione from CondizioniPagamento Where IDPagamento = 4"},
    {"lookupGroup", "SELECT  IdGruppoVabo From conti where IdConto =101"},
    {"lookupLedger", "select idmastro from conti where idconto = 101"},
    {"sectionList", "select idautonumber,id,descrizione ,AreaAttivita, ultimadataacquistir As DataAcquistiDef,"
                    " Ultimadatavenditer as DataVenditeDef,IvaSezionale.liquidazione from IvaSezionale   ORDER BY"
                    " ivasezionale.id"},
    {"sectionAddDescription",
     "alter table Ivasezionale add    descrizione nvarchar(255) not null default 'Sezionale Iva' "},
    {"sectionAddArea", "alter table Ivasezionale add    AreaAttivita nvarchar(255)  null  "},
    {"sectionByNumber", "select * from ivasezionale where Id=2"},
    {"sectionsInOrder", "select * from IvaSezionale order by id"},
    {"sectionByKey", "select * from IvaSezionale where idautonumber = 2"},
    {"sectionsLiquidation", "Update ivasezionale set liquidazione = 3"},
    {"countersLiquidation", "Update contatorepd set liquidazione = 3 where id = 5"},
    {"sectionReset", " select * from ivasezionale where id = 2"},
    {"sections", " select * from ivasezionale "},
    {"sectionInUse", "Select * from partitadoppia where sezIva = 2"},
    {"sectionDelete", "delete from IvaSezionale where idautonumber = 2"},
    {"companyData", "select * from DatiAzienda Order by ID"},
    {"municipalitiesByName", "SELECT * from comuni order by des_comune"},
    {"paymentTermsComplete",
     "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione FROM"
     " (CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON"
     " CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER JOIN"
     " CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa ="
     " CondizioniPagamentoTipoIncasso.IdTipoRimessa"},
    {"stateOfCompany", "Select * from stati where idstato=7"},
    {"companyDataRow", "Select * from DatiAzienda"},
    {"paymentTermGrid",
     "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione,"
     " CondizioniPagamento.NRrate, CondizioniPagamento.IDDecorrenza,"
     " CondizioniPagamentoDecorrenza.Descrizione, CondizioniPagamento.RataAnticipo,"
     " CondizioniPagamento.Scadenza1, CondizioniPagamento.Scadenza2, CondizioniPagamento.Scadenza3,"
     " CondizioniPagamento.Scadenza4, CondizioniPagamento.Scadenza5, CondizioniPagamento.Scadenza6,"
     " CondizioniPagamento.Scadenza7, CondizioniPagamento.Scadenza8, CondizioniPagamento.Scadenza9,"
     " CondizioniPagamento.Scadenza10, CondizioniPagamento.Scadenza11, CondizioniPagamento.Scadenza12,"
     " CondizioniPagamento.IdTipoRimessa, CondizioniPagamentoTipoIncasso.Descrizione FROM"
     " (CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON"
     " CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER JOIN"
     " CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa ="
     " CondizioniPagamentoTipoIncasso.IdTipoRimessa order by CondizioniPagamento.Descrizione "},
    {"commencementRules", "SELECT * from  CondizioniPagamentoDecorrenza order by Descrizione"},
    {"paymentKinds", "SELECT * from  CondizioniPagamentoTipoIncasso order by descrizione"},
    {"paymentTermAddAdvance", "alter TABLE [condizionipagamento] add    RataAnticipo decimal(18,2) not NULL default 0"},
    {"paymentTerms", " SELECT * from CondizioniPagamento"},
    {"paymentTermByKey", " SELECT * from CondizioniPagamento WHERE  idpagamento = 4"},
    {"commencementGrid",
     " select IDDecorrenza, Descrizione, GiornoScadenza, GiornoScadenza1, GiornoScadenza2,"
     " GiornoScadenza3, Mese1, Mese2, Mese3 from  CondizioniPagamentoDecorrenza order by descrizione"},
    {"commencements", " SELECT * from CondizioniPagamentoDecorrenza"},
    {"commencementByKey", " SELECT * from CondizioniPagamentoDecorrenza WHERE  iddecorrenza = 4"},
    {"areas", "Select * from ZoneGeografiche "},
    {"statesByName", "SELECT * from stati order by DescStato"},
    {"states", "select * from stati"},
    {"stateByKey", "select * from stati where idstato = 7"},
    {"areaByName", "select * from Zonegeografiche where descrizione ='Europa'"},
    {"statesWithoutName", "delete from stati where descstato is null"},
    {"municipalityStates", "SELECT * FROM stati order by descstato"},
    {"municipalityGrid",
     "SELECT Comuni.idautonumber,Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato,"
     " Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by"
     " descstato,des_comune"},
    {"municipalityGridAfterSave",
     "SELECT Comuni.idautonumber, Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato,"
     " Stati.DescStato FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by"
     " descstato,des_comune"},
    {"municipalities", "select * from comuni"},
    {"municipalityByKey", "select * from  comuni where idautonumber=4"},
};

} // namespace engine::samples
