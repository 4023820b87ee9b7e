-- Tables of the control database, with its spelling of names.

CREATE TABLE [link_programma] (
    [id] int IDENTITY(1,1) NOT NULL,
    [NomeAzienda] varchar(255) NULL,
    [Stringa_connessione_sql] nvarchar(255) NULL,
    [tlv_access] nvarchar(255) NULL,
    [tlv_sql] nvarchar(255) NULL,
    [wzzip] nvarchar(255) NULL,
    [wzunzip] nvarchar(50) NULL,
    [Nserver] nvarchar(250) NULL,
    [dbname] nvarchar(50) NULL,
    [nRoot] nvarchar(50) NULL,
    [Npassw] nvarchar(50) NULL,
    [ultimo] bit NOT NULL DEFAULT '0',
    [nometerminale] nvarchar(255) NULL,
    [IndirizzoMdf] nvarchar(250) NULL,
    [IndirizzoLdf] nvarchar(250) NULL
)
GO
CREATE TABLE [link_programmaTerminale] (
    [idAutonumber] int IDENTITY(1,1) NOT NULL,
    [Nometerminale] nvarchar(255) NULL,
    [ultimo] int NOT NULL DEFAULT 0,
    [Version] int NOT NULL DEFAULT 0
)
GO
