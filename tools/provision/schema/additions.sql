-- Columns that came later. A company whose database is older gets them from the console.

ALTER TABLE [IvaSezionale] ADD [descrizione] nvarchar(255) NOT NULL DEFAULT 'Sezionale Iva'
GO
ALTER TABLE [IvaSezionale] ADD [AreaAttivita] nvarchar(255) NULL
GO
ALTER TABLE [CondizioniPagamento] ADD [RataAnticipo] decimal(18,2) NOT NULL DEFAULT 0
GO
