-- Columns of later versions. The console adds them to an older company's database.

ALTER TABLE [IvaSezionale] ADD [descrizione] nvarchar(255) NOT NULL DEFAULT 'Sezionale Iva'
GO
ALTER TABLE [IvaSezionale] ADD [AreaAttivita] nvarchar(255) NULL
GO
ALTER TABLE [CondizioniPagamento] ADD [RataAnticipo] decimal(18,2) NOT NULL DEFAULT 0
GO
