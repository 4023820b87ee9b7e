-- Data of the first company: a mature organisation with branches abroad.

INSERT INTO [Sede] ([idsede], [città], [Indirizzo], [cap]) VALUES (1, N'Torino', N'Via dell''Alba 12', N'10121')
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [statooprovincia], [cap], [telefonoufficio], [numerofax], [indirizzopostaelettronica], [Note], [IdStato], [idDatainvio]) VALUES
    (N'Torino', N'Via dell''Alba 12', N'TO', N'10121', N'011 5550100', N'011 5550101', N'sede@aurora.example', N'Sede legale e amministrativa', 1, NULL),
    (N'Milano', N'Corso del Mattino 8', N'MI', N'20121', N'02 5550200', N'02 5550201', N'milano@aurora.example', NULL, 1, '20231231'),
    (N'Roma', N'Viale delle Rondini 45', N'RM', N'00100', N'06 5550300', NULL, N'roma@aurora.example', N'Rapporti con i ministeri', 1, '20231231')
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [telefonoufficio], [indirizzopostaelettronica], [Note], [IdStato], [idDatainvio])
    SELECT N'Nairobi', N'P.O. Box 5555', N'+254 20 5550400', N'nairobi@aurora.example', N'Acqua e scuole', [IdStato], '20240331' FROM [stati] WHERE [Sigla] = 'KE'
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [telefonoufficio], [indirizzopostaelettronica], [Note], [IdStato], [idDatainvio])
    SELECT N'Maputo', N'Rua da Aurora 77', N'+258 21 555050', N'maputo@aurora.example', N'Salute', [IdStato], '20240331' FROM [stati] WHERE [Sigla] = 'MZ'
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [telefonoufficio], [indirizzopostaelettronica], [IdStato])
    SELECT N'La Paz', N'Calle Amanecer 301', N'+591 2 5550600', N'lapaz@aurora.example', [IdStato] FROM [stati] WHERE [Sigla] = 'BO'
GO
INSERT INTO [ElencoSedi] ([città], [Indirizzo], [IdStato])
    SELECT N'Tirana', N'Rruga e Agimit 5', [IdStato] FROM [stati] WHERE [Sigla] = 'AL'
GO
-- A branch without a state
INSERT INTO [ElencoSedi] ([città], [Note]) VALUES (N'Magazzino mobile', N'Senza indirizzo')
GO
INSERT INTO [sedecentrale] ([idsede], [città], [Indirizzo], [statooprovincia], [cap], [IdStato], [telefonoufficio], [numerofax], [indirizzopostaelettronica], [Note]) VALUES
    (1, N'Torino', N'Via dell''Alba 12', N'TO', N'10121', 1, N'011 5550100', N'011 5550101', N'sede@aurora.example', N'Sede legale e amministrativa')
GO
INSERT INTO [DirectoryHQ] ([IdAutonumber], [Directoryfile]) VALUES (1, N'C:\Vabo\Server\VaboDatiHQ')
GO
INSERT INTO [Directorybackup] ([IdAutonumber], [Directoryfile]) VALUES (1, N'C:\Vabo\Server\Backup')
GO
INSERT INTO [DirectorySede] ([Directoryfile], [NomeFile]) VALUES (N'C:\vabo\NomeServer.txt', N'NomeServer.txt')
GO

INSERT INTO [progetti] ([titolobreve], [Type], [Number], [Description], [iddate], [idDataBilancio]) VALUES
    (N'Progetto generale', N'GEN', N'000', N'Attività generale dell''associazione', NULL, '20231231'),
    (N'Acqua Kitui', N'MAE', N'9871', N'Acqua potabile nella contea di Kitui', '20231231', NULL),
    (N'Scuole Nairobi', N'UE', N'2020/155', N'Scuole primarie negli insediamenti informali di Nairobi', '20240331', NULL),
    (N'Salute Sofala', N'MAE', N'10044', N'Salute materna e infantile nella provincia di Sofala', '20231231', NULL),
    (N'Sementi Manica', N'NU', N'MZ-33', N'Sementi e mercati contadini nella provincia di Manica', NULL, NULL),
    (N'Tessitrici Altopiano', N'FON', N'2021-07', N'Cooperative di tessitrici dell''altopiano boliviano', '20240630', NULL),
    (N'Miele Yungas', N'FON', N'2022-11', N'Apicoltura e turismo responsabile negli Yungas', NULL, NULL),
    (N'Giovani Tirana', N'UE', N'2021/802', N'Formazione professionale per i giovani di Tirana', '20240331', NULL),
    (N'Sostegno a distanza', N'SAD', N'001', N'Sostegno a distanza di bambini e famiglie', NULL, NULL),
    (N'Emergenza siccità', N'EME', N'2022', N'Risposta alla siccità nel Corno d''Africa', '20231231', NULL),
    (N'Cittadini del mondo', N'EAS', N'15', N'Educazione alla cittadinanza nelle scuole del Piemonte', '20240630', NULL),
    (N'Botteghe', N'ATC', N'003', N'Vendita di prodotti artigianali', NULL, NULL),
    (N'Rete 2030', N'REG', N'77/B', N'Rete regionale per gli obiettivi del 2030', NULL, NULL)
GO
INSERT INTO [contatorepd] ([id], [iddate], [liquidazione]) VALUES (1, '20231231', 3)
GO

INSERT INTO [TabellaUilityConti] ([id], [Lunghezza], [Descrizione]) VALUES
    (1, 0, N'Standard'),
    (2, 3, N'Mastro'),
    (3, 2, N'Conto'),
    (4, 4, N'S/Conto'),
    (5, 0, N'Budget Ong Automatico'),
    (6, 0, N'Progressivo budget'),
    (7, 0, N'Esporta solo registrazioni di loco'),
    (8, -1, N'Usa InforEuro'),
    (9, 0, N'Usa Badge')
GO

INSERT INTO [IvaSezionale] ([id], [descrizione], [AreaAttivita], [UltimaDataAcquisti], [UltimaDatavendite], [UltimaDataAcquistir], [UltimaDatavenditer], [ultimaFatturaAcquisti], [Ultimaresoacquisti], [ultimaFatturavendite], [Ultimaresivendite], [ultimoprogressivoAcquisti], [Ultimoprogressivovendite], [importodefinitivo1], [importodefinitivo2], [importodefinitivo3], [importodefinitivo12], [importodefinitivoAnno], [Liquidazione], [UltimaPaginaAcquisti], [UltimaPaginaVendite]) VALUES
    (1, N'Attività commerciale', N'Botteghe', '20240628', '20240629', '20240331', '20240331', 214, 3, 388, 5, 214, 388, 120.50, -45.20, 310.00, 77.80, 250.10, 3, 18, 31),
    (2, N'Formazione', N'Corsi', '20240615', '20240620', '20240331', '20240331', 41, 0, 57, 1, 41, 57, 12.00, 15.75, -8.40, 0, 33.00, 3, 4, 6),
    (10, N'Affitto sale', N'Immobili', NULL, NULL, NULL, NULL, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0)
GO
INSERT INTO [IvaAliquotaStandard] ([idTipo], [Aliquota], [Sigla], [Detrazione]) VALUES (2, N'22,00', N'22', N'100,00')
GO

UPDATE [CondizioniPagamento] SET [RataAnticipo] = 10.5 WHERE [Descrizione] LIKE 'Assegno%'
GO
INSERT INTO [DatiAzienda] ([Nome], [Via], [città], [cap], [IdStato], [IDPagamento], [IdIncasso], [telefonoufficio], [numerofax], [indirizzopostaelettronica], [sito], [Codicefiscale], [PartitaIva], [Cab], [Abi], [Cin], [IBAN], [BIC], [ccorrente], [Intestatario], [Banca], [idtipoazienda], [ModuloFattura]) VALUES
    (N'Associazione Aurora', N'Via dell''Alba 12', N'Torino', N'10121', 1, 4, 2, N'011 5550100', N'011 5550101', N'sede@aurora.example', N'www.aurora.example', N'97088120015', N'08765120012', N'01000', N'09991', N'Y', N'IT27Y0999101000000000123456', N'AURAITT1', N'000000123456', N'Associazione Aurora', N'Banca del Mattino', 0, 1)
GO
