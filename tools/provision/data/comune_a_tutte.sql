-- Rows that every company starts with, whatever its own data.

-- States that no longer exist, and some founding dates
INSERT INTO [stati] ([DescStato], [DataIstituzioneStato], [DataSoppressioneStato], [IsoValuta], [Area])
    SELECT N'Cecoslovacchia', '19181028', '19921231', N'CSK', Area FROM [stati] WHERE [Sigla] = 'CZ'
GO
INSERT INTO [stati] ([DescStato], [DataIstituzioneStato], [DataSoppressioneStato], [IsoValuta], [Area])
    SELECT N'Unione Sovietica', '19221230', '19911226', N'SUR', Area FROM [stati] WHERE [Sigla] = 'RU'
GO
UPDATE [stati] SET [DataIstituzioneStato] = '18610317' WHERE [Sigla] = 'IT'
GO
UPDATE [stati] SET [DataIstituzioneStato] = '19631212' WHERE [Sigla] = 'KE'
GO
UPDATE [stati] SET [DataIstituzioneStato] = '19750625' WHERE [Sigla] = 'MZ'
GO

-- Users. One has no password yet, one is disabled.
INSERT INTO [AbilitazioneAccessi] ([NomeUtente], [PaswUtente], [Administrator], [A_Inserisci], [A_Cancella], [A_Iva], [A_Bilancio], [A_Personale], [A_ArchivioStoria], [A_PFinanza], [A_Synchro], [A_EmettiPagamenti], [A_Progetta], [Disabilita]) VALUES
    (N'amministratore', N'primavera', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0),
    (N'contabile', N'estate24', 0, 1, 0, 1, 1, 0, 0, 1, 0, 0, 0, 0),
    (N'nuovo_utente', NULL, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
    (N'disabilitato', N'autunno', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1)
GO

-- Treatments of VAT. The first means none; those of sales have a code that begins with IV.
INSERT INTO [IvaTrattamento] ([Descrizione], [Aliquota], [quotadetrazione], [Sigla]) VALUES
    (N'Nessun trattamento', 0, 0, N''),
    (N'Imponibile 22%', 22, 100, N'22'),
    (N'Imponibile 10%', 10, 100, N'10'),
    (N'Imponibile 5%', 5, 100, N'05'),
    (N'Imponibile 4%', 4, 100, N'04'),
    (N'Imponibile 22% detraibile 50%', 22, 50, N'22D'),
    (N'Imponibile 22% indetraibile', 22, 0, N'22I'),
    (N'Inversione contabile 22%', 22, 100, N'RC22'),
    (N'Esente art. 10', 0, 100, N'ES10'),
    (N'Non imponibile art. 8', 0, 100, N'NI8'),
    (N'Fuori campo Iva', 0, 0, N'FC'),
    (N'Iva vendite 22%', 22, 100, N'IV22'),
    (N'Iva vendite 10%', 10, 100, N'IV10'),
    (N'Iva vendite 4%', 4, 100, N'IV04')
GO

-- Kinds of payment, and the days from which their terms count
INSERT INTO [CondizioniPagamentoTipoIncasso] ([Descrizione]) VALUES
    (N'Rimessa diretta'),
    (N'Bonifico bancario'),
    (N'Ricevuta bancaria'),
    (N'Assegno'),
    (N'Contanti')
GO
INSERT INTO [CondizioniPagamentoDecorrenza] ([Descrizione], [GiornoScadenza], [GiornoScadenza1], [GiornoScadenza2], [GiornoScadenza3], [Mese1], [Mese2], [Mese3]) VALUES
    (N'Data fattura', 0, 0, 0, 0, 0, 0, 0),
    (N'Fine mese', 31, 0, 0, 0, 0, 0, 0),
    (N'Fine mese escluso Agosto  Dicembre', 31, 0, 0, 0, 8, 12, 0),
    (N'Sc.il 10 del mese', 10, 0, 0, 0, 0, 0, 0),
    (N'Sc.il 10 - 25 del mese', 10, 25, 0, 0, 0, 0, 0),
    (N'Sc.il 5 - 15 - 25 del mese escluso Agosto', 5, 15, 25, 0, 8, 0, 0),
    (N'Sc.il 5 - 10 - 15 - 20 del mese', 5, 10, 15, 20, 0, 0, 0),
    (N'Fine mese escluso Luglio  Agosto  Dicembre', 31, 0, 0, 0, 7, 8, 12)
GO
INSERT INTO [CondizioniPagamento] ([Descrizione], [NRrate], [IDDecorrenza], [Scadenza1], [Scadenza2], [Scadenza3], [Scadenza4], [Scadenza5], [Scadenza6], [IdTipoRimessa]) VALUES
    (N'Contanti a  Data fattura', 1, 1, 0, 0, 0, 0, 0, 0, 5),
    (N'Rimessa diretta a 30 Data fattura', 1, 1, 30, 0, 0, 0, 0, 0, 1),
    (N'Rimessa diretta a 30-60-90 Fine mese', 3, 2, 30, 60, 90, 0, 0, 0, 1),
    (N'Bonifico bancario a 30 Fine mese', 1, 2, 30, 0, 0, 0, 0, 0, 2),
    (N'Bonifico bancario a 60 Fine mese', 1, 2, 60, 0, 0, 0, 0, 0, 2),
    (N'Bonifico bancario a 30-60 Fine mese', 2, 2, 30, 60, 0, 0, 0, 0, 2),
    (N'Ricevuta bancaria a 60 Sc.il 10 del mese', 1, 4, 60, 0, 0, 0, 0, 0, 3),
    (N'Ricevuta bancaria a 30-60 Sc.il 10 - 25 del mese', 2, 5, 30, 60, 0, 0, 0, 0, 3),
    (N'Assegno a 30-60-90-120-150-180 Data fattura', 6, 1, 30, 60, 90, 120, 150, 180, 4)
GO
-- One for each rule that the terms above don't use, and one with all instalments. A name ends at its fiftieth letter.
INSERT INTO [CondizioniPagamento] ([Descrizione], [NRrate], [IDDecorrenza], [Scadenza1], [Scadenza2], [Scadenza3], [Scadenza4], [Scadenza5], [Scadenza6], [Scadenza7], [Scadenza8], [Scadenza9], [Scadenza10], [Scadenza11], [Scadenza12], [IdTipoRimessa]) VALUES
    (N'Bonifico bancario a 90 Fine mese escluso Agosto  D', 1, 3, 90, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2),
    (N'Assegno a 15-45 Sc.il 5 - 15 - 25 del mese escluso', 2, 6, 15, 45, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4),
    (N'Contanti a 10-20-30-40 Sc.il 5 - 10 - 15 - 20 del ', 4, 7, 10, 20, 30, 40, 0, 0, 0, 0, 0, 0, 0, 0, 5),
    (N'Ricevuta bancaria a 30-60-90-120-150 Fine mese esc', 5, 8, 30, 60, 90, 120, 150, 0, 0, 0, 0, 0, 0, 0, 3),
    (N'Rimessa diretta a 30-60-90-120-150-180-210-240-270', 12, 1, 30, 60, 90, 120, 150, 180, 210, 240, 270, 300, 330, 360, 1)
GO

-- Options with fixed numbers, which the identity column assigns in this order.
INSERT INTO [datiGenerali] ([Descrizione], [Contatore]) VALUES
    (N'Ultima registrazione', 0),
    (N'Ultimo protocollo', 0),
    (N'Numero decimali', 2),
    (N'Giorni di preavviso scadenze', 7),
    (N'Stampa conti a zero', 0),
    (N'Usa Mastro Conto S/conto', -1),
    (N'Inserimento Automatico Scadenziari', 0),
    (N'Gestione Note di Debito', -1),
    (N'Gestione Previsionali', 0),
    (N'Riapertura Oneri progetto a Fine Es.', -1),
    (N'Centri di costo', 0),
    (N'Controllo del budget', 0),
    (N'Archivio allegati', 0),
    (N'Numerazione per sede', -1),
    (N'Usa C/Transitorio Economico', 0),
    (N'Sede Amministrativa', 0)
GO
