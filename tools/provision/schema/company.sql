-- Tables of a company database, as the accounting program creates them.

-- Geography and branches

CREATE TABLE [ZoneGeografiche] (
    [IdZona] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(50) NULL,
    CONSTRAINT [PK_ZoneGeografiche] PRIMARY KEY ([IdZona])
)
GO
-- The order of the columns matters: the grid of states shows the second to the fifth and the last.
CREATE TABLE [stati] (
    [IdStato] int IDENTITY(1,1) NOT NULL,
    [DescStato] nvarchar(100) NULL,
    [DataIstituzioneStato] datetime NULL,
    [DataSoppressioneStato] datetime NULL,
    [IsoValuta] nvarchar(3) NULL,
    [Sigla] nvarchar(2) NULL,
    [Sigla3] nvarchar(3) NULL,
    [CodiceNumerico] int NULL,
    [Area] nvarchar(50) NULL,
    CONSTRAINT [PK_stati] PRIMARY KEY ([IdStato])
)
GO
CREATE INDEX [IX_stati_DescStato] ON [stati] ([DescStato])
GO
CREATE TABLE [Comuni] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [DES_COMUNE] nvarchar(100) NULL,
    [DES_PROVIN] nvarchar(2) NULL,
    [COD_CAP] nvarchar(5) NULL,
    [IdStato] int NULL DEFAULT 1,
    CONSTRAINT [PK_Comuni] PRIMARY KEY ([idautonumber])
)
GO
CREATE INDEX [IX_Comuni_DES_COMUNE] ON [Comuni] ([DES_COMUNE])
GO
CREATE TABLE [Sede] (
    [idsede] int NOT NULL,
    [città] nvarchar(100) NULL,
    [Indirizzo] nvarchar(255) NULL,
    [cap] nvarchar(10) NULL,
    CONSTRAINT [PK_Sede] PRIMARY KEY ([idsede])
)
GO
CREATE TABLE [ElencoSedi] (
    [IdSede] int IDENTITY(1,1) NOT NULL,
    [città] nvarchar(100) NULL,
    [Indirizzo] nvarchar(255) NULL,
    [statooprovincia] nvarchar(50) NULL,
    [cap] nvarchar(10) NULL,
    [IdStato] int NULL,
    [telefonoufficio] nvarchar(30) NULL,
    [numerofax] nvarchar(30) NULL,
    [indirizzopostaelettronica] nvarchar(100) NULL,
    [Note] nvarchar(1000) NULL,
    [idDatainvio] datetime NULL,
    CONSTRAINT [PK_ElencoSedi] PRIMARY KEY ([IdSede])
)
GO
-- idsede is overwritten when a branch is chosen, so it can't be the key.
CREATE TABLE [sedecentrale] (
    [IdAutonumber] int IDENTITY(1,1) NOT NULL,
    [idsede] int NULL,
    [città] nvarchar(100) NULL,
    [Indirizzo] nvarchar(255) NULL,
    [statooprovincia] nvarchar(50) NULL,
    [cap] nvarchar(10) NULL,
    [IdStato] int NULL,
    [telefonoufficio] nvarchar(30) NULL,
    [numerofax] nvarchar(30) NULL,
    [indirizzopostaelettronica] nvarchar(100) NULL,
    [Note] nvarchar(1000) NULL,
    CONSTRAINT [PK_sedecentrale] PRIMARY KEY ([IdAutonumber])
)
GO
CREATE TABLE [DirectoryHQ] (
    [IdAutonumber] int NOT NULL,
    [Directoryfile] nvarchar(255) NULL,
    CONSTRAINT [PK_DirectoryHQ] PRIMARY KEY ([IdAutonumber])
)
GO
CREATE TABLE [Directorybackup] (
    [IdAutonumber] int NOT NULL,
    [Directoryfile] nvarchar(255) NULL,
    CONSTRAINT [PK_Directorybackup] PRIMARY KEY ([IdAutonumber])
)
GO
CREATE TABLE [DirectorySede] (
    [IdAutonumber] int IDENTITY(1,1) NOT NULL,
    [Directoryfile] nvarchar(255) NULL,
    [NomeFile] nvarchar(100) NULL,
    CONSTRAINT [PK_DirectorySede] PRIMARY KEY ([IdAutonumber])
)
GO

-- Users

CREATE TABLE [AbilitazioneAccessi] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [NomeUtente] nvarchar(25) NULL,
    [PaswUtente] nvarchar(12) NULL,
    [Administrator] bit NOT NULL DEFAULT 0,
    [A_Inserisci] bit NOT NULL DEFAULT 0,
    [A_Cancella] bit NOT NULL DEFAULT 0,
    [A_Iva] bit NOT NULL DEFAULT 0,
    [A_Bilancio] bit NOT NULL DEFAULT 0,
    [A_Personale] bit NOT NULL DEFAULT 0,
    [A_ArchivioStoria] bit NOT NULL DEFAULT 0,
    [A_PFinanza] bit NOT NULL DEFAULT 0,
    [A_Synchro] bit NOT NULL DEFAULT 0,
    [A_EmettiPagamenti] bit NOT NULL DEFAULT 0,
    [A_Progetta] bit NOT NULL DEFAULT 0,
    [Disabilita] bit NOT NULL DEFAULT 0,
    CONSTRAINT [PK_AbilitazioneAccessi] PRIMARY KEY ([idautonumber])
)
GO

-- Chart of accounts, projects, ledger

-- The first project is the general one: 10000001.
CREATE TABLE [progetti] (
    [ID] int IDENTITY(10000001,1) NOT NULL,
    [titolobreve] nvarchar(50) NULL,
    [Type] nvarchar(10) NULL,
    [Number] nvarchar(20) NULL,
    [Description] nvarchar(255) NULL,
    [iddate] datetime NULL,
    [idDataBilancio] datetime NULL,
    CONSTRAINT [PK_progetti] PRIMARY KEY ([ID])
)
GO
CREATE TABLE [gruppivabo] (
    [idgruppo] int NOT NULL,
    [dettagli] nvarchar(255) NULL,
    CONSTRAINT [PK_gruppivabo] PRIMARY KEY ([idgruppo])
)
GO
CREATE TABLE [conti] (
    [IdConto] int NOT NULL,
    [NomeConto] nvarchar(255) NULL,
    [Contoreport] nvarchar(30) NULL,
    [idchiave] nvarchar(30) NULL,
    [IDProgetto] int NULL,
    [idmastro] int NULL,
    [IdGruppoVabo] int NULL,
    CONSTRAINT [PK_conti] PRIMARY KEY ([IdConto])
)
GO
CREATE INDEX [IX_conti_IDProgetto] ON [conti] ([IDProgetto])
GO
CREATE INDEX [IX_conti_idmastro] ON [conti] ([idmastro])
GO
CREATE TABLE [partitadoppia] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [numerotransazione] int NOT NULL,
    [idsede] int NOT NULL,
    [datatransazione] datetime NOT NULL,
    [datareport] datetime NULL,
    [idconto] int NULL,
    [idprogettorendiconto] int NULL,
    [idsedecompetenza] int NULL,
    [Descrizione] nvarchar(255) NULL,
    [importodepositi] decimal(18,2) NULL,
    [importoprelievi] decimal(18,2) NULL,
    [idvaluta] int NOT NULL DEFAULT 1001,
    [importovaluta] decimal(18,2) NULL,
    [seziva] int NOT NULL DEFAULT 0,
    [definito] smallint NOT NULL DEFAULT 0,
    CONSTRAINT [PK_partitadoppia] PRIMARY KEY ([idautonumber])
)
GO
CREATE INDEX [IX_partitadoppia_transazione] ON [partitadoppia] ([numerotransazione], [idsede])
GO
CREATE INDEX [IX_partitadoppia_progetto] ON [partitadoppia] ([idprogettorendiconto], [datatransazione])
GO
CREATE INDEX [IX_partitadoppia_competenza] ON [partitadoppia] ([idsedecompetenza], [datatransazione])
GO
CREATE INDEX [IX_partitadoppia_conto] ON [partitadoppia] ([idconto])
GO
CREATE INDEX [IX_partitadoppia_seziva] ON [partitadoppia] ([seziva])
GO
CREATE TABLE [contatorepd] (
    [id] int NOT NULL,
    [iddate] datetime NULL,
    [liquidazione] int NULL,
    [ultimatransazione] int NOT NULL DEFAULT 0,
    CONSTRAINT [PK_contatorepd] PRIMARY KEY ([id])
)
GO

-- Option rows

CREATE TABLE [datiGenerali] (
    [id] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(255) NULL,
    [Contatore] int NULL,
    CONSTRAINT [PK_datiGenerali] PRIMARY KEY ([id])
)
GO
CREATE TABLE [TabellaUilityConti] (
    [id] int NOT NULL,
    [Lunghezza] int NULL,
    [Descrizione] nvarchar(255) NULL,
    CONSTRAINT [PK_TabellaUilityConti] PRIMARY KEY ([id])
)
GO

-- Accounts of the system

CREATE TABLE [TabellaContiUtili] (
    [ID] int NOT NULL,
    [Description] nvarchar(255) NULL,
    [IdConto] int NULL,
    [idconto1] int NULL,
    [IdProgetto] int NULL,
    CONSTRAINT [PK_TabellaContiUtili] PRIMARY KEY ([ID])
)
GO
CREATE TABLE [tipoanagrafica] (
    [IdTipoAnagrafica] int NOT NULL,
    [TipoAnagrafe] nvarchar(100) NULL,
    [idconto] int NULL,
    [idconto1] int NULL,
    CONSTRAINT [PK_tipoanagrafica] PRIMARY KEY ([IdTipoAnagrafica])
)
GO
CREATE TABLE [bustetabellacontiutili] (
    [Id] int NOT NULL,
    [description] nvarchar(255) NULL,
    [idconto] int NULL,
    [idconto1] int NULL,
    [IdProgetto] int NULL,
    CONSTRAINT [PK_bustetabellacontiutili] PRIMARY KEY ([Id])
)
GO
CREATE TABLE [tabellacontiutiliTransfersHQ] (
    [Id] int NOT NULL,
    [description] nvarchar(255) NULL,
    [idconto] int NULL,
    [idconto1] int NULL,
    CONSTRAINT [PK_tabellacontiutiliTransfersHQ] PRIMARY KEY ([Id])
)
GO
CREATE TABLE [tabellacontiutilicontributi] (
    [Id] int NOT NULL,
    [description] nvarchar(255) NULL,
    [idconto] int NULL,
    [idconto1] int NULL,
    CONSTRAINT [PK_tabellacontiutilicontributi] PRIMARY KEY ([Id])
)
GO
CREATE TABLE [ivaTabellaContiUtili] (
    [ID] int NOT NULL,
    [Description] nvarchar(255) NULL,
    [idconto] int NULL,
    [idconto1] int NULL,
    [idProgetto] int NULL,
    CONSTRAINT [PK_ivaTabellaContiUtili] PRIMARY KEY ([ID])
)
GO
CREATE TABLE [TipoAnagraficaCPartite] (
    [id] int NOT NULL,
    [IdIrpef] int NULL,
    [IdIrpefReg] int NULL,
    [IdIrpefCom] int NULL,
    [IdInpsP] int NULL,
    [IdInailP] int NULL,
    [IdCInpsE] int NULL,
    [IdGInpsE] int NULL,
    [IdCInailE] int NULL,
    [IdGInailE] int NULL,
    [IdCAltriFondiE] int NULL,
    [IdGAltriFondiE] int NULL,
    [IdAltriFondiP] int NULL,
    [IdCIrapE] int NULL,
    [IdGIrapE] int NULL,
    [IdIrapP] int NULL,
    CONSTRAINT [PK_TipoAnagraficaCPartite] PRIMARY KEY ([id])
)
GO

-- VAT

CREATE TABLE [IvaTrattamento] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(255) NULL,
    [Aliquota] decimal(18,2) NULL,
    [quotadetrazione] decimal(18,2) NULL,
    [Sigla] nvarchar(10) NULL,
    CONSTRAINT [PK_IvaTrattamento] PRIMARY KEY ([idautonumber])
)
GO
-- Rate and share are stored as they were displayed, with a decimal comma.
CREATE TABLE [IvaAliquotaStandard] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [idTipo] int NULL,
    [Aliquota] nvarchar(20) NULL,
    [Sigla] nvarchar(10) NULL,
    [Detrazione] nvarchar(20) NULL,
    CONSTRAINT [PK_IvaAliquotaStandard] PRIMARY KEY ([idautonumber])
)
GO
CREATE TABLE [IvaSezionale] (
    [idautonumber] int IDENTITY(1,1) NOT NULL,
    [id] int NULL,
    [idsede] int NOT NULL DEFAULT 1,
    [UltimaDataAcquisti] datetime NULL,
    [UltimaDatavendite] datetime NULL,
    [UltimaDataAcquistir] datetime NULL,
    [UltimaDatavenditer] datetime NULL,
    [ultimaFatturaAcquisti] int NOT NULL DEFAULT 0,
    [Ultimaresoacquisti] int NOT NULL DEFAULT 0,
    [ultimaFatturavendite] int NOT NULL DEFAULT 0,
    [Ultimaresivendite] int NOT NULL DEFAULT 0,
    [ultimoprogressivoAcquisti] int NOT NULL DEFAULT 0,
    [Ultimoprogressivovendite] int NOT NULL DEFAULT 0,
    [importodefinitivo1] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo2] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo3] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo4] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo5] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo6] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo7] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo8] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo9] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo10] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo11] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivo12] decimal(18,2) NOT NULL DEFAULT 0,
    [importodefinitivoAnno] decimal(18,2) NOT NULL DEFAULT 0,
    [Liquidazione] int NULL DEFAULT 1,
    [UltimaPaginaAcquisti] int NOT NULL DEFAULT 0,
    [UltimaPaginaVendite] int NOT NULL DEFAULT 0,
    CONSTRAINT [PK_IvaSezionale] PRIMARY KEY ([idautonumber])
)
GO

-- The company and its payment terms

CREATE TABLE [DatiAzienda] (
    [ID] int IDENTITY(1,1) NOT NULL,
    [Nome] nvarchar(255) NULL,
    [Via] nvarchar(255) NULL,
    [città] nvarchar(255) NULL,
    [cap] nvarchar(10) NULL,
    [IdStato] int NULL,
    [IDPagamento] int NULL,
    [IdIncasso] int NULL,
    [telefonoufficio] nvarchar(30) NULL,
    [numerofax] nvarchar(30) NULL,
    [indirizzopostaelettronica] nvarchar(100) NULL,
    [sito] nvarchar(100) NULL,
    [Codicefiscale] nvarchar(20) NULL,
    [PartitaIva] nvarchar(20) NULL,
    [Cab] nvarchar(5) NULL,
    [Abi] nvarchar(5) NULL,
    [Cin] nvarchar(2) NULL,
    [IBAN] nvarchar(34) NULL,
    [BIC] nvarchar(11) NULL,
    [ccorrente] nvarchar(30) NULL,
    [Intestatario] nvarchar(255) NULL,
    [Banca] nvarchar(255) NULL,
    [idtipoazienda] int NOT NULL DEFAULT 0,
    [ModuloFattura] bit NOT NULL DEFAULT 0,
    CONSTRAINT [PK_DatiAzienda] PRIMARY KEY ([ID])
)
GO
CREATE TABLE [CondizioniPagamentoTipoIncasso] (
    [IdTipoRimessa] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(50) NULL,
    CONSTRAINT [PK_CondizioniPagamentoTipoIncasso] PRIMARY KEY ([IdTipoRimessa])
)
GO
CREATE TABLE [CondizioniPagamentoDecorrenza] (
    [IDDecorrenza] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(255) NULL,
    [GiornoScadenza] int NOT NULL DEFAULT 0,
    [GiornoScadenza1] int NOT NULL DEFAULT 0,
    [GiornoScadenza2] int NOT NULL DEFAULT 0,
    [GiornoScadenza3] int NOT NULL DEFAULT 0,
    [Mese1] int NOT NULL DEFAULT 0,
    [Mese2] int NOT NULL DEFAULT 0,
    [Mese3] int NOT NULL DEFAULT 0,
    CONSTRAINT [PK_CondizioniPagamentoDecorrenza] PRIMARY KEY ([IDDecorrenza])
)
GO
CREATE TABLE [CondizioniPagamento] (
    [IDPagamento] int IDENTITY(1,1) NOT NULL,
    [Descrizione] nvarchar(50) NULL,
    [NRrate] int NULL,
    [IDDecorrenza] int NULL,
    [Scadenza1] int NOT NULL DEFAULT 0,
    [Scadenza2] int NOT NULL DEFAULT 0,
    [Scadenza3] int NOT NULL DEFAULT 0,
    [Scadenza4] int NOT NULL DEFAULT 0,
    [Scadenza5] int NOT NULL DEFAULT 0,
    [Scadenza6] int NOT NULL DEFAULT 0,
    [Scadenza7] int NOT NULL DEFAULT 0,
    [Scadenza8] int NOT NULL DEFAULT 0,
    [Scadenza9] int NOT NULL DEFAULT 0,
    [Scadenza10] int NOT NULL DEFAULT 0,
    [Scadenza11] int NOT NULL DEFAULT 0,
    [Scadenza12] int NOT NULL DEFAULT 0,
    [IdTipoRimessa] int NULL,
    CONSTRAINT [PK_CondizioniPagamento] PRIMARY KEY ([IDPagamento])
)
GO
