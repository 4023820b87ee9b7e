-- The accounts that the accounting program posts to by purpose. Some purposes have no account yet.

INSERT INTO [TabellaContiUtili] ([ID], [Description], [idconto], [idconto1], [IdProgetto]) VALUES
    (1, N'Avanzo o disavanzo di esercizio', 1051, 19, 10000001),
    (2, N'Conto economico di riepilogo', 1058, 21, 10000001),
    (3, N'Cassa della sede centrale', 1158, 40, 10000001),
    (4, N'Banca della sede centrale', 1150, 39, 10000001),
    (5, N'Bilancio di apertura', 1059, 21, 10000001),
    (6, N'Fatture da ricevere', 1077, 25, 10000001),
    (7, N'Fatture da emettere', 1130, 35, 10000001),
    (8, N'Interessi attivi (conto economico)', 1038, 17, 10000001),
    (9, N'Interessi passivi (conto economico)', 1247, 54, 10000001),
    (10, N'Commissioni bancarie (conto economico)', 1249, 54, 10000001),
    (11, N'Ratei attivi', 1175, 43, 10000001),
    (12, N'Ratei passivi', 1110, 31, 10000001),
    (13, N'Risconti attivi', 1176, 43, 10000001),
    (14, N'Risconti passivi', 1111, 31, 10000001),
    (15, N'Conto transitorio', 1169, 41, 10000001),
    (16, N'Conto transitorio economico', NULL, NULL, NULL),
    (17, N'Sopravvenienze attive', 1044, 18, 10000001),
    (18, N'Bilancio di chiusura', 1060, 21, 10000001),
    (19, N'Utili su cambi', 1040, 17, 10000001),
    (20, N'Sopravvenienze passive', 1254, 55, 10000001),
    (21, N'Anticipi al personale', 1146, 38, 10000001),
    (22, N'Debiti verso partner', 1099, 29, 10000001),
    (23, N'Crediti verso partner', 1143, 38, 10000001),
    (24, N'Anticipi da finanziatori', 1102, 29, 10000001),
    (25, N'Fondo oscillazione cambi', 1072, 24, 10000001),
    (26, N'Fondi in viaggio', 1168, 41, 10000001),
    (27, N'Perdite su cambi', 1250, 54, 10000001),
    (28, N'Arrotondamenti attivi', 1045, 18, 10000001),
    (29, N'Differenze di conversione', 1251, 54, 10000001),
    (30, N'Arrotondamenti passivi', 1255, 55, 10000001),
    (31, N'Quota di ammortamento (conto economico)', 1224, 50, 10000001),
    (32, N'Deposito cauzionale', NULL, NULL, NULL)
GO

INSERT INTO [tipoanagrafica] ([IdTipoAnagrafica], [TipoAnagrafe], [idconto], [idconto1]) VALUES
    (1, N'Fornitori Italia', 1075, 25),
    (2, N'Fornitori estero', 1076, 25),
    (3, N'Clienti', 1129, 35),
    (4, N'Dipendenti', 1094, 28),
    (5, N'Collaboratori', 1095, 28),
    (6, N'Cooperanti', 1096, 28),
    (7, N'Donatori (conto economico)', 1015, 13),
    (8, N'Soci', 1147, 38),
    (9, N'Professionisti', NULL, NULL),
    (10, N'Volontari', 1097, 28)
GO

INSERT INTO [bustetabellacontiutili] ([Id], [description], [idconto], [idconto1], [IdProgetto]) VALUES
    (1, N'Stipendi lordi (conto economico)', 1179, 44, 10000001),
    (2, N'Netto in busta', 1094, 28, 10000001),
    (3, N'Ritenute Irpef', 1080, 26, 10000001),
    (4, N'Addizionale regionale', 1082, 26, 10000001),
    (5, N'Addizionale comunale', 1083, 26, 10000001),
    (6, N'Contributi Inps a carico ente (conto economico)', 1185, 45, 10000001),
    (7, N'Premi Inail (conto economico)', 1187, 45, 10000001),
    (8, N'Debiti verso Inps', 1089, 27, 10000001),
    (9, N'Debiti verso Inail', 1091, 27, 10000001),
    (10, N'Trattamento di fine rapporto', 1063, 22, 10000001),
    (11, N'Quota Tfr (conto economico)', 1183, 44, 10000001),
    (12, N'Trattenute sindacali', NULL, NULL, NULL)
GO

INSERT INTO [tabellacontiutiliTransfersHQ] ([Id], [description], [idconto], [idconto1]) VALUES
    (1, N'Trasferimenti ricevuti dalla sede centrale', 1166, 41),
    (2, N'Trasferimenti inviati alla sede centrale', 1167, 41),
    (3, N'Crediti verso sedi estere', 1144, 38),
    (4, N'Debiti verso sedi estere', 1101, 29)
GO

INSERT INTO [tabellacontiutilicontributi] ([Id], [description], [idconto], [idconto1]) VALUES
    (1, N'Contributi pubblici (conto economico)', 1003, 11),
    (2, N'Contributi europei (conto economico)', 1004, 11),
    (3, N'Contributi di fondazioni (conto economico)', 1010, 12),
    (4, N'Crediti verso finanziatori pubblici', 1133, 36),
    (5, N'Risconto di contributi vincolati', 1112, 31),
    (6, N'Contributi di enti locali (conto economico)', NULL, NULL)
GO

INSERT INTO [ivaTabellaContiUtili] ([ID], [Description], [idconto], [idconto1], [idProgetto]) VALUES
    (1, N'Iva su acquisti', 1139, 37, 10000001),
    (2, N'Iva su vendite', 1085, 26, 10000001),
    (3, N'Erario c/Iva', 1086, 26, 10000001),
    (4, N'Fornitori Italia', 1075, 25, 10000001),
    (5, N'Fornitori estero', 1076, 25, 10000001),
    (6, N'Clienti', 1129, 35, 10000001),
    (7, N'Note di credito da emettere', 1078, 25, 10000001),
    (8, N'Note di credito da ricevere', 1131, 35, 10000001),
    (9, N'Ritenuta d''acconto', 1081, 26, 10000001),
    (10, N'Bolli in fattura', NULL, NULL, NULL)
GO

-- Counter-accounts of the pay slips
INSERT INTO [TipoAnagraficaCPartite] ([id], [IdIrpef], [IdIrpefReg], [IdIrpefCom], [IdInpsP], [IdInailP], [IdCInpsE], [IdGInpsE], [IdCInailE], [IdGInailE], [IdCAltriFondiE], [IdGAltriFondiE], [IdAltriFondiP], [IdCIrapE], [IdGIrapE], [IdIrapP]) VALUES
    (4, 1080, 1082, 1083, 1089, 1091, 1185, 45, 1187, 45, 1188, 45, 1092, 1189, 45, 1084),
    (5, 1081, 1082, 1083, 1090, 1091, 1186, 45, 1187, 45, NULL, NULL, NULL, 1189, 45, 1084),
    (6, 1080, 1082, 1083, 1089, 1091, 1185, 45, 1187, 45, 1188, 45, 1092, NULL, NULL, NULL),
    (9, 1081, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)
GO
