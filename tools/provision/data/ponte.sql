-- Data of the second company: a small foundation whose database is older, and where much is still to be filled in.

INSERT INTO [Sede] ([idsede], [città], [Indirizzo], [cap]) VALUES (1, N'Genova', N'Salita del Ponte 3', N'16121')
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [statooprovincia], [cap], [telefonoufficio], [indirizzopostaelettronica], [IdStato]) VALUES
    (N'Genova', N'Salita del Ponte 3', N'GE', N'16121', N'010 5550700', N'sede@ponte.example', 1),
    (N'Napoli', N'Vico delle Barche 21', N'NA', N'80121', N'081 5550800', N'napoli@ponte.example', 1)
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [IdStato])
    SELECT N'Dakar', N'Rue du Pont 14', [IdStato] FROM [stati] WHERE [Sigla] = 'SN'
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [IdStato])
    SELECT N'Lima', N'Jirón del Puente 250', [IdStato] FROM [stati] WHERE [Sigla] = 'PE'
GO
-- The folder of the data file is unknown.
INSERT INTO [DirectorySede] ([Directoryfile], [NomeFile]) VALUES (NULL, N'NomeServer.txt')
GO

INSERT INTO [progetti] ([titolobreve], [Type], [Number], [Description], [iddate], [idDataBilancio]) VALUES
    (N'Progetto generale', N'GEN', N'000', N'Attività generale della fondazione', NULL, '20221231'),
    (N'Barche di Joal', N'FON', N'2021-02', N'Pesca artigianale a Joal', '20221231', NULL),
    (N'Orti di Pikine', N'REG', N'12/A', N'Orti comunitari a Pikine', NULL, NULL),
    (N'Mense Villa El Salvador', N'FON', N'2022-09', N'Mense popolari a Villa El Salvador', NULL, NULL),
    (N'Doposcuola Sanità', N'COM', N'5', N'Doposcuola nel rione Sanità', '20221231', NULL),
    (N'Porto aperto', N'COM', N'8', N'Accoglienza nel centro storico di Genova', NULL, NULL)
GO
INSERT INTO [contatorepd] ([id], [iddate], [liquidazione]) VALUES (1, '20221231', 1)
GO

INSERT INTO [TabellaUilityConti] ([id], [Lunghezza], [Descrizione]) VALUES
    (1, -1, N'Standard'),
    (2, 3, N'Mastro'),
    (3, 2, N'Conto'),
    (4, 4, N'S/Conto'),
    (5, -1, N'Budget Ong Automatico'),
    (7, -1, N'Esporta solo registrazioni di loco'),
    (8, -2, N'Usa InforEuro'),
    (9, 1, N'Usa Badge')
GO

INSERT INTO [IvaSezionale] ([id], [UltimaDataAcquisti], [UltimaDatavendite], [UltimaDataAcquistir], [UltimaDatavenditer], [ultimaFatturaAcquisti], [ultimaFatturavendite], [ultimoprogressivoAcquisti], [Ultimoprogressivovendite], [importodefinitivo12], [Liquidazione]) VALUES
    (1, '20230530', '20230525', '20221231', '20221231', 18, 9, 18, 9, 41.30, 1),
    (2, NULL, NULL, NULL, NULL, 0, 0, 0, 0, 0, 1)
GO

INSERT INTO [DatiAzienda] ([Nome], [Via], [città], [cap], [IdStato], [IDPagamento], [IdIncasso], [telefonoufficio], [indirizzopostaelettronica], [Codicefiscale], [IBAN], [Intestatario]) VALUES
    (N'Fondazione Il Ponte', N'Salita del Ponte 3', N'Genova', N'16121', 1, 2, 2, N'010 5550700', N'sede@ponte.example', N'95103440103', N'IT67N0999201400000000654321', N'Fondazione Il Ponte')
GO
