<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AutoBackup</name>
    <message>
        <source>%1 could not be made.</source>
        <translation>%1 konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Today&apos;s automatic backup of the database could not be made:  %1</source>
        <translation>Die heutige automatische Sicherung der Datenbank konnte nicht erstellt werden:  %1</translation>
    </message>
    <message>
        <source>Automatic Backup</source>
        <translation>Automatische Sicherung</translation>
    </message>
</context>
<context>
    <name>Catalogue</name>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
</context>
<context>
    <name>CatalogueScreen</name>
    <message>
        <source>%1 columns</source>
        <translation>Spalten: %1</translation>
    </message>
    <message>
        <source>Object variable or With block variable not set</source>
        <translation>Objektvariable oder With-Blockvariable nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>CustomerListModel</name>
    <message>
        <source>Account ID</source>
        <translation>Kundennummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>Could not find file &apos;%1&apos;.</source>
        <translation>Die Datei „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The new row&apos;s key was not returned.</source>
        <translation>Der Schlüssel der neuen Zeile wurde nicht zurückgegeben.</translation>
    </message>
    <message>
        <source>Programming error: the row has no column named &apos;%1&apos;.</source>
        <translation>Programmierfehler: Die Zeile hat keine Spalte namens „%1“.</translation>
    </message>
</context>
<context>
    <name>DatabaseCopy</name>
    <message>
        <source>The copy of the database failed its integrity check.</source>
        <translation>Die Kopie der Datenbank hat die Integritätsprüfung nicht bestanden.</translation>
    </message>
</context>
<context>
    <name>DesktopReportDelivery</name>
    <message>
        <source>No printer is installed on this computer.  Would you like to see it on the screen instead?</source>
        <translation>Auf diesem Computer ist kein Drucker installiert.  Möchten Sie es stattdessen auf dem Bildschirm ansehen?</translation>
    </message>
    <message>
        <source>No Printer</source>
        <translation>Kein Drucker</translation>
    </message>
    <message>
        <source>The printer %1 could not print.</source>
        <translation>Der Drucker %1 konnte nicht drucken.</translation>
    </message>
</context>
<context>
    <name>Diag</name>
    <message>
        <source>Could not create log entry:  %1</source>
        <translation>Der Protokolleintrag konnte nicht angelegt werden:  %1</translation>
    </message>
</context>
<context>
    <name>Installation</name>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Brisko cannot start because some of its files are missing:

%1

It looked for them in:
%2

Please install Brisko again.</source>
        <translation>Brisko kann nicht starten, weil einige seiner Dateien fehlen:

%1

Gesucht wurde in:
%2

Bitte installieren Sie Brisko erneut.</translation>
    </message>
    <message>
        <source>Missing Files</source>
        <translation>Fehlende Dateien</translation>
    </message>
</context>
<context>
    <name>Mailer</name>
    <message>
        <source>The mail server refused the message: %1 (%2)</source>
        <translation>Der Mailserver hat die Nachricht abgelehnt: %1 (%2)</translation>
    </message>
    <message>
        <source>The e-mail could not be sent: %1</source>
        <translation>Die E-Mail konnte nicht gesendet werden: %1</translation>
    </message>
    <message>
        <source>No outgoing mail server is set up.</source>
        <translation>Es ist kein Postausgangsserver eingerichtet.</translation>
    </message>
    <message>
        <source>There is no address to send the e-mail to.</source>
        <translation>Es ist keine Empfängeradresse für die E-Mail vorhanden.</translation>
    </message>
</context>
<context>
    <name>ModalScreen</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>Receipt</name>
    <message>
        <source>Could not retrieve the next receipt number.  Please try again.</source>
        <translation>Die nächste Quittungsnummer konnte nicht ermittelt werden.  Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Could not lock database to get next receipt number.  Giving up after three tries.</source>
        <translation>Die Datenbank konnte für die nächste Quittungsnummer nicht gesperrt werden.  Nach drei Versuchen wird aufgegeben.</translation>
    </message>
</context>
<context>
    <name>ReceiptListModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Receipt No.</source>
        <translation>Quittungsnr.</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Kundenname</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Rcvd</source>
        <translation>Erhalten</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>ReportData</name>
    <message>
        <source>Data set &apos;%1&apos;: %2</source>
        <translation>Datenquelle „%1“: %2</translation>
    </message>
    <message>
        <source>only one statement is allowed.</source>
        <translation>nur eine Anweisung ist erlaubt.</translation>
    </message>
    <message>
        <source>no value for :%1.</source>
        <translation>kein Wert für :%1.</translation>
    </message>
    <message>
        <source>only a SELECT may read data.</source>
        <translation>nur ein SELECT darf Daten lesen.</translation>
    </message>
</context>
<context>
    <name>ReportPreview</name>
    <message>
        <source>&lt; &amp;Previous</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The file could not be saved:  </source>
        <translation>Die Datei konnte nicht gespeichert werden:  </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>The report template &apos;%1&apos; %2</source>
        <translation>Die Berichtsvorlage „%1“ %2</translation>
    </message>
    <message>
        <source>has an element of unknown type &apos;%1&apos;.</source>
        <translation>enthält ein Element unbekannten Typs „%1“.</translation>
    </message>
    <message>
        <source>has an element without its four-number rect.</source>
        <translation>enthält ein Element ohne sein Rechteck aus vier Zahlen.</translation>
    </message>
    <message>
        <source>has a band of unknown type &apos;%1&apos;.</source>
        <translation>enthält einen Bereich unbekannten Typs „%1“.</translation>
    </message>
    <message>
        <source>could not be opened: %1</source>
        <translation>konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>is not valid (%1 at offset %2).</source>
        <translation>ist ungültig (%1 an Position %2).</translation>
    </message>
    <message>
        <source>has no name.</source>
        <translation>hat keinen Namen.</translation>
    </message>
</context>
<context>
    <name>Runtime</name>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Invalid use of Null</source>
        <translation>Unzulässige Verwendung von Null</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Unzulässiger Prozeduraufruf oder unzulässiges Argument</translation>
    </message>
</context>
<context>
    <name>Schema</name>
    <message>
        <source>File already exists</source>
        <translation>Die Datei existiert bereits</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>You are already running the most recent version of Brisko</source>
        <translation>Sie verwenden bereits die neueste Version von Brisko</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Nach Aktualisierung suchen</translation>
    </message>
    <message>
        <source>Brisko version %1 is available.  Would you like to download it now?</source>
        <translation>Brisko-Version %1 ist verfügbar.  Möchten Sie sie jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Aktualisierung verfügbar</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update service at %1 did not answer in time.</source>
        <translation>Der Aktualisierungsdienst unter %1 hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The update service at %1 could not be reached: %2. Please check the connection to the internet.</source>
        <translation>Der Aktualisierungsdienst unter %1 war nicht erreichbar: %2. Bitte prüfen Sie die Internetverbindung.</translation>
    </message>
</context>
<context>
    <name>dbUpdater</name>
    <message>
        <source>CAUTION!!!!  You are using a shared Brisko database.  If you upgrade this database, then all computers using this shared database must be upgraded before using Brisko.</source>
        <translation>ACHTUNG!!!!  Sie verwenden eine gemeinsame Brisko-Datenbank.  Wenn Sie diese Datenbank aktualisieren, müssen alle Computer, die diese gemeinsame Datenbank verwenden, ebenfalls aktualisiert werden, bevor dort wieder mit Brisko gearbeitet wird.</translation>
    </message>
    <message>
        <source>Upgrade Warning</source>
        <translation>Warnung zur Aktualisierung</translation>
    </message>
    <message>
        <source>The Brisko database was not updated.  This program will close.</source>
        <translation>Die Brisko-Datenbank wurde nicht aktualisiert.  Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Upgrade Aborted</source>
        <translation>Aktualisierung abgebrochen</translation>
    </message>
    <message>
        <source>Error while trying to update your database.  Please contact Tolveran Systems support with this error:  </source>
        <translation>Fehler beim Aktualisieren Ihrer Datenbank.  Bitte wenden Sie sich mit dieser Fehlermeldung an den Support von Tolveran Systems:  </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Your database has been updated to %1.  A backup was made to %2</source>
        <translation>Ihre Datenbank wurde auf %1 aktualisiert.  Eine Sicherung wurde unter %2 angelegt</translation>
    </message>
    <message>
        <source>Update Complete</source>
        <translation>Aktualisierung abgeschlossen</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Brisko</source>
        <translation>Über Brisko</translation>
    </message>
    <message>
        <source>Brisko</source>
        <translation>Brisko</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>A receipt book for small businesses.</source>
        <translation>Ein Quittungsbuch für kleine Betriebe.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Version %1.%2.%3</translation>
    </message>
</context>
<context>
    <name>frmCustPop</name>
    <message>
        <source>Select Customer</source>
        <translation>Kunde auswählen</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>No customer records found.</source>
        <translation>Keine Kunden gefunden.</translation>
    </message>
    <message>
        <source>No Records</source>
        <translation>Keine Einträge</translation>
    </message>
</context>
<context>
    <name>frmCustomerList</name>
    <message>
        <source>Customer Search</source>
        <translation>Kundensuche</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Suche:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Retrieve All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Search Options:</source>
        <translation>Suchoptionen:</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>Beginnt mit</translation>
    </message>
    <message>
        <source>Appears in Any</source>
        <translation>Enthält</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>Endet mit</translation>
    </message>
    <message>
        <source>Customers:</source>
        <translation>Kunden:</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Customer columns</source>
        <translation>Spalten der Kundenliste</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>No records were found for your search criteria.</source>
        <translation>Zu Ihren Suchkriterien wurden keine Einträge gefunden.</translation>
    </message>
    <message>
        <source>No Records</source>
        <translation>Keine Einträge</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>Brisko Login</source>
        <translation>Brisko-Anmeldung</translation>
    </message>
    <message>
        <source>&amp;Username:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Version %1.%2.%3</translation>
    </message>
    <message>
        <source>Invalid username/password</source>
        <translation>Benutzername oder Kennwort ungültig</translation>
    </message>
    <message>
        <source>Invalid Login</source>
        <translation>Anmeldung ungültig</translation>
    </message>
    <message>
        <source>User account is not active.  Please contact your administrator.</source>
        <translation>Das Benutzerkonto ist nicht aktiv.  Bitte wenden Sie sich an Ihren Administrator.</translation>
    </message>
    <message>
        <source>Inactive Account</source>
        <translation>Inaktives Konto</translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation>Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>&amp;Login</source>
        <translation>&amp;Anmelden</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Brisko</source>
        <translation>Brisko</translation>
    </message>
    <message>
        <source>Today&apos;s Sales</source>
        <translation>Heutige Verkäufe</translation>
    </message>
    <message>
        <source>Sales this Month:</source>
        <translation>Verkäufe in diesem Monat:</translation>
    </message>
    <message>
        <source>Icon Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Brisko - </source>
        <translation>Brisko - </translation>
    </message>
    <message>
        <source>[SHARED] </source>
        <translation>[GETEILT] </translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>You cannot open a stand-alone database while Multi-User mode is enabled.  Click File, Multi-User Settings to change your settings.</source>
        <translation>Im Mehrbenutzerbetrieb können Sie keine Einzelplatz-Datenbank öffnen.  Klicken Sie auf Datei, Mehrbenutzer-Einstellungen, um Ihre Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>Multi-User Mode</source>
        <translation>Mehrbenutzerbetrieb</translation>
    </message>
    <message>
        <source>Database has been changed</source>
        <translation>Die Datenbank wurde gewechselt</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Backup Database</source>
        <translation>Datenbank sichern</translation>
    </message>
    <message>
        <source>Restore Database</source>
        <translation>Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>Multi-User Settings</source>
        <translation>Mehrbenutzer-Einstellungen</translation>
    </message>
    <message>
        <source>New Receipt</source>
        <translation>Neue Quittung</translation>
    </message>
    <message>
        <source>Receipt Journal</source>
        <translation>Quittungsjournal</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Reprint Receipt</source>
        <translation>Quittung erneut drucken</translation>
    </message>
    <message>
        <source>Update Receipt Status</source>
        <translation>Quittungsstatus ändern</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Service Descriptions</source>
        <translation>Leistungsbeschreibungen</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>Payment Methods</source>
        <translation>Zahlungsarten</translation>
    </message>
    <message>
        <source>Receipt Ledger</source>
        <translation>Quittungsübersicht</translation>
    </message>
    <message>
        <source>Service Breakdown Report</source>
        <translation>Leistungsaufschlüsselung</translation>
    </message>
    <message>
        <source>Service Ledger</source>
        <translation>Leistungsübersicht</translation>
    </message>
    <message>
        <source>Inventory Sold</source>
        <translation>Verkaufte Artikel</translation>
    </message>
    <message>
        <source>Inventory Sold Detail</source>
        <translation>Verkaufte Artikel im Einzelnen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>What&apos;s New?</source>
        <translation>Was ist neu?</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>About Brisko</source>
        <translation>Über Brisko</translation>
    </message>
    <message>
        <source>Report Manager</source>
        <translation>Berichtsverwaltung</translation>
    </message>
    <message>
        <source>Services Provided</source>
        <translation>Erbrachte Leistungen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Print Receipt</source>
        <translation>Quittung drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Email Receipt</source>
        <translation>Quittung per E-Mail senden</translation>
    </message>
    <message>
        <source>View Receipt</source>
        <translation>Quittung anzeigen</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Sales this Month</source>
        <translation>Verkäufe in diesem Monat</translation>
    </message>
</context>
<context>
    <name>frmMultiUser</name>
    <message>
        <source>Multi-User Settings</source>
        <translation>Mehrbenutzer-Einstellungen</translation>
    </message>
    <message>
        <source>Select Local or Shared Database:</source>
        <translation>Lokale oder gemeinsame Datenbank wählen:</translation>
    </message>
    <message>
        <source>Use stand-alone database</source>
        <translation>Einzelplatz-Datenbank verwenden</translation>
    </message>
    <message>
        <source>Use a shared database</source>
        <translation>Gemeinsame Datenbank verwenden</translation>
    </message>
    <message>
        <source>Shared File Location:</source>
        <translation>Speicherort der gemeinsamen Datei:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Copy current stand-alone database to shared location.</source>
        <translation>Aktuelle Einzelplatz-Datenbank an den gemeinsamen Speicherort kopieren.</translation>
    </message>
    <message>
        <source>Remove Share File Lock</source>
        <translation>Sperre der gemeinsamen Datei aufheben</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Shared File Location</source>
        <translation>Speicherort der gemeinsamen Datei</translation>
    </message>
    <message>
        <source>A lock file was not found for %1</source>
        <translation>Für %1 wurde keine Sperrdatei gefunden</translation>
    </message>
    <message>
        <source>No lock file</source>
        <translation>Keine Sperrdatei</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Lock file removed.</source>
        <translation>Die Sperrdatei wurde entfernt.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Are you sure you want to use these settings?</source>
        <translation>Möchten Sie diese Einstellungen wirklich verwenden?</translation>
    </message>
    <message>
        <source>Confirm Settings</source>
        <translation>Einstellungen bestätigen</translation>
    </message>
    <message>
        <source>%1 does not exist.  Please select a valid location.</source>
        <translation>%1 existiert nicht.  Bitte wählen Sie einen gültigen Speicherort.</translation>
    </message>
    <message>
        <source>Path does not exist</source>
        <translation>Pfad existiert nicht</translation>
    </message>
    <message>
        <source>A valid Brisko database was not found at %1.  Are you sure you want to save these settings?  Brisko Desk will not function without a valid database.</source>
        <translation>Unter %1 wurde keine gültige Brisko-Datenbank gefunden.  Möchten Sie diese Einstellungen wirklich speichern?  Ohne gültige Datenbank funktioniert Brisko Desk nicht.</translation>
    </message>
    <message>
        <source>Invalid Brisko Desk Database</source>
        <translation>Ungültige Brisko-Desk-Datenbank</translation>
    </message>
    <message>
        <source>WARNING!  There is an Brisko database at %1.  Are you sure you want to PROCEED and overwrite the existing file?  All data will be lost in the existing file.</source>
        <translation>WARNUNG!  Unter %1 befindet sich bereits eine Brisko-Datenbank.  Möchten Sie wirklich FORTFAHREN und die vorhandene Datei überschreiben?  Alle Daten in der vorhandenen Datei gehen verloren.</translation>
    </message>
    <message>
        <source>Overwrite Existing File</source>
        <translation>Vorhandene Datei überschreiben</translation>
    </message>
    <message>
        <source>Stand-alone database file was not copied.</source>
        <translation>Die Einzelplatz-Datenbankdatei wurde nicht kopiert.</translation>
    </message>
    <message>
        <source>Multi-user Setting</source>
        <translation>Mehrbenutzer-Einstellung</translation>
    </message>
    <message>
        <source>Database settings have been changed.  Brisko will now restart.</source>
        <translation>Die Datenbankeinstellungen wurden geändert.  Brisko wird jetzt neu gestartet.</translation>
    </message>
    <message>
        <source>Multi-User</source>
        <translation>Mehrbenutzer</translation>
    </message>
</context>
<context>
    <name>frmPayMethod</name>
    <message>
        <source>Payment Method Admin</source>
        <translation>Zahlungsarten verwalten</translation>
    </message>
    <message>
        <source>Payment Methods:</source>
        <translation>Zahlungsarten:</translation>
    </message>
    <message>
        <source>Payment Methods</source>
        <translation>Zahlungsarten</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Payment Method Details:</source>
        <translation>Details der Zahlungsart:</translation>
    </message>
    <message>
        <source>Method Name:</source>
        <translation>Bezeichnung:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Method Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Are you sure you want to delete payment method type &apos;%1&apos;?</source>
        <translation>Möchten Sie die Zahlungsart „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>This payment method type is used by one or more receipts.  You can not delete this payment type.</source>
        <translation>Diese Zahlungsart wird in einer oder mehreren Quittungen verwendet.  Sie kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>In Use</source>
        <translation>In Verwendung</translation>
    </message>
</context>
<context>
    <name>frmProductManagement</name>
    <message>
        <source>Inventory</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>Products:</source>
        <translation>Artikel:</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Suche:</translation>
    </message>
    <message>
        <source>Press Enter to search</source>
        <translation>Zum Suchen die Eingabetaste drücken</translation>
    </message>
    <message>
        <source>Show Inactive</source>
        <translation>Inaktive anzeigen</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Product Details:</source>
        <translation>Artikeldetails:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Unit Price:</source>
        <translation>Stückpreis:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reload List</source>
        <translation>Liste neu laden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>An error has occured!  </source>
        <translation>Ein Fehler ist aufgetreten!  </translation>
    </message>
    <message>
        <source>Product Load Error</source>
        <translation>Fehler beim Laden der Artikel</translation>
    </message>
    <message>
        <source>An error occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Cancel operation?</source>
        <translation>Vorgang abbrechen?</translation>
    </message>
    <message>
        <source>Unit Cost is invalid.</source>
        <translation>Der Stückpreis ist ungültig.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>This product is used on a receipt and can not be deleted.</source>
        <translation>Dieser Artikel wird in einer Quittung verwendet und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Product In Use</source>
        <translation>Artikel in Verwendung</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this product?</source>
        <translation>Möchten Sie diesen Artikel wirklich entfernen?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation>Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Keine Artikel gefunden</translation>
    </message>
    <message>
        <source>Search Results</source>
        <translation>Suchergebnisse</translation>
    </message>
</context>
<context>
    <name>frmService</name>
    <message>
        <source>Manage Services</source>
        <translation>Leistungen verwalten</translation>
    </message>
    <message>
        <source>Services:</source>
        <translation>Leistungen:</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Leistungen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Service Details:</source>
        <translation>Details der Leistung:</translation>
    </message>
    <message>
        <source>Short Name:</source>
        <translation>Kurzbezeichnung:</translation>
    </message>
    <message>
        <source>Receipt Description:</source>
        <translation>Text auf der Quittung:</translation>
    </message>
    <message>
        <source>Default Cost:</source>
        <translation>Standardpreis:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Short Name</source>
        <translation>Kurzbezeichnung</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Load Service List</source>
        <translation>Leistungsliste laden</translation>
    </message>
    <message>
        <source>Could not retrieve service description.</source>
        <translation>Die Leistungsbeschreibung konnte nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Invalid default cost amount.  Please correct and try again.</source>
        <translation>Ungültiger Standardpreis.  Bitte korrigieren Sie ihn und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this service description?</source>
        <translation>Möchten Sie diese Leistungsbeschreibung wirklich entfernen?</translation>
    </message>
    <message>
        <source>Confirm Delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>The service description has been removed.</source>
        <translation>Die Leistungsbeschreibung wurde entfernt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>frmUser</name>
    <message>
        <source>System User</source>
        <translation>Systembenutzer</translation>
    </message>
    <message>
        <source>&amp;Username:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>&amp;Confirm Password:</source>
        <translation>Kennwort bes&amp;tätigen:</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Passwords do not match.  Please try again.</source>
        <translation>Die Kennwörter stimmen nicht überein.  Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Password Check</source>
        <translation>Kennwortprüfung</translation>
    </message>
    <message>
        <source>Can &amp;Edit:</source>
        <translation>Darf b&amp;earbeiten:</translation>
    </message>
    <message>
        <source>Can &amp;Void</source>
        <translation>Darf &amp;stornieren</translation>
    </message>
    <message>
        <source>Can &amp;Delete</source>
        <translation>Darf &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Run Reports</source>
        <translation>Berichte a&amp;usführen</translation>
    </message>
    <message>
        <source>&amp;Admin Access</source>
        <translation>&amp;Administratorzugriff</translation>
    </message>
    <message>
        <source>Ac&amp;tive</source>
        <translation>Akt&amp;iv</translation>
    </message>
</context>
<context>
    <name>modMain</name>
    <message>
        <source>Database %1 does not exist.  Please select a database to open.</source>
        <translation>Die Datenbank %1 existiert nicht.  Bitte wählen Sie eine Datenbank zum Öffnen aus.</translation>
    </message>
    <message>
        <source>Missing / Invalid Database</source>
        <translation>Fehlende / ungültige Datenbank</translation>
    </message>
    <message>
        <source>Program Failure</source>
        <translation>Programmfehler</translation>
    </message>
    <message>
        <source>Entering the starting number for the receipt.  Must be greater or equal to 1.</source>
        <translation>Geben Sie die Startnummer der Quittungen ein.  Sie muss größer oder gleich 1 sein.</translation>
    </message>
    <message>
        <source>Starting Number</source>
        <translation>Startnummer</translation>
    </message>
    <message>
        <source>Abort this process?</source>
        <translation>Diesen Vorgang abbrechen?</translation>
    </message>
    <message>
        <source>Abort New Year</source>
        <translation>Neues Jahr abbrechen</translation>
    </message>
    <message>
        <source>User aborted.  This program can not continue without creating the new year.</source>
        <translation>Vom Benutzer abgebrochen.  Ohne das neue Jahr kann das Programm nicht fortfahren.</translation>
    </message>
    <message>
        <source>Starting number can only contain digits</source>
        <translation>Die Startnummer darf nur Ziffern enthalten</translation>
    </message>
    <message>
        <source>Invalid Starting Number</source>
        <translation>Ungültige Startnummer</translation>
    </message>
    <message>
        <source>Starting number must be greater than zero</source>
        <translation>Die Startnummer muss größer als null sein</translation>
    </message>
    <message>
        <source>The program has detected a change in the receipt year.</source>
        <translation>Das Programm hat einen Wechsel des Quittungsjahres festgestellt</translation>
    </message>
    <message>
        <source>and will create a new year for %1.  Click OK to proceed.</source>
        <translation>und legt ein neues Jahr für %1 an.  Klicken Sie auf OK, um fortzufahren.</translation>
    </message>
    <message>
        <source>Year Change</source>
        <translation>Jahreswechsel</translation>
    </message>
    <message>
        <source>This program can not continue without creating the new year.</source>
        <translation>Ohne das neue Jahr kann das Programm nicht fortfahren.</translation>
    </message>
    <message>
        <source>The receipt year could not be created.  This program can not continue.</source>
        <translation>Das Quittungsjahr konnte nicht angelegt werden.  Das Programm kann nicht fortfahren.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>An error occured during the intilization:  </source>
        <translation>Beim Starten ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>Startup Error</source>
        <translation>Startfehler</translation>
    </message>
    <message>
        <source>Share file %1 could not be found.  Using local database instead.  Go to File-&gt;Multi-user settings and check your share file settings.</source>
        <translation>Die gemeinsame Datei %1 wurde nicht gefunden.  Stattdessen wird die lokale Datenbank verwendet.  Prüfen Sie unter Datei-&gt;Mehrbenutzer-Einstellungen die Einstellungen Ihrer gemeinsamen Datei.</translation>
    </message>
    <message>
        <source>Share File Doesn&apos;t Exist</source>
        <translation>Gemeinsame Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>Invalid receipt number format:  %1.  This program can not continue</source>
        <translation>Ungültiges Format der Quittungsnummer:  %1.  Das Programm kann nicht fortfahren</translation>
    </message>
    <message>
        <source>The file %1 is empty. Create a new Brisko database in it?</source>
        <translation>Die Datei %1 ist leer. Eine neue Brisko-Datenbank darin anlegen?</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Backup Filename</comment>
        <translation>Dateiname der Sicherung</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Brisko Backup Files (*.db)</comment>
        <translation>Brisko-Sicherungsdateien (*.db)</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>You can not use the name bdesk.db.  Please enter a different name for your backup file.</comment>
        <translation>Der Name bdesk.db kann nicht verwendet werden.  Bitte geben Sie einen anderen Namen für Ihre Sicherungsdatei ein.</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Error</comment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>%1 already exists.  Do you wish to overwrite this file?</comment>
        <translation>%1 existiert bereits.  Möchten Sie diese Datei überschreiben?</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Existing Backup File</comment>
        <translation>Vorhandene Sicherungsdatei</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Restore Database</comment>
        <translation>Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Brisko Backup Files (*.db);;All Files (*)</comment>
        <translation>Brisko-Sicherungsdateien (*.db);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>You can not restore bdesk.db as it is the current database file.  Please choose a backup file.</comment>
        <translation>bdesk.db kann nicht wiederhergestellt werden, da es die aktuelle Datenbankdatei ist.  Bitte wählen Sie eine Sicherungsdatei.</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Error</comment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>%1 is not a Brisko database, or it is damaged.  Please choose a backup file.</comment>
        <translation>%1 ist keine Brisko-Datenbank oder ist beschädigt.  Bitte wählen Sie eine Sicherungsdatei.</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Warning!  You are about to replace the contents of your current database.  This action CAN NOT BE REVERSED.</comment>
        <translation>Achtung!  Sie sind dabei, den Inhalt Ihrer aktuellen Datenbank zu ersetzen.  Dieser Vorgang kann NICHT RÜCKGÄNGIG GEMACHT werden.</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Are you sure you wish to continue?</comment>
        <translation>Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>openDatabaseDialog</source>
        <comment>Open Database</comment>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>openDatabaseDialog</source>
        <comment>Database Files (*.db)</comment>
        <translation>Datenbankdateien (*.db)</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Error occured during the database backup.  Error: </comment>
        <translation>Bei der Sicherung der Datenbank ist ein Fehler aufgetreten.  Fehler: </translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Backup operation completed.</comment>
        <translation>Die Sicherung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>backupDatabase</source>
        <comment>Complete</comment>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Restore operation was canceled.</comment>
        <translation>Die Wiederherstellung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Restored Canceled</comment>
        <translation>Wiederherstellung abgebrochen</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Could not restore database.  Error: </comment>
        <translation>Die Datenbank konnte nicht wiederhergestellt werden.  Fehler: </translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Restore operation completed.  Brisko must now be restarted.</comment>
        <translation>Die Wiederherstellung ist abgeschlossen.  Brisko muss jetzt neu gestartet werden.</translation>
    </message>
    <message>
        <source>restoreDatabase</source>
        <comment>Restore Complete</comment>
        <translation>Wiederherstellung abgeschlossen</translation>
    </message>
</context>
<context>
    <name>modReports</name>
    <message>
        <source>Receipt Ledger</source>
        <translation>Quittungsübersicht</translation>
    </message>
    <message>
        <source>Inventory Sold Ledger</source>
        <translation>Übersicht verkaufte Artikel</translation>
    </message>
    <message>
        <source>Service Ledger</source>
        <translation>Leistungsübersicht</translation>
    </message>
    <message>
        <source>Service Breakdown Report</source>
        <translation>Leistungsaufschlüsselung</translation>
    </message>
    <message>
        <source>Inventory Sold Detail Ledger</source>
        <translation>Übersicht verkaufte Artikel im Einzelnen</translation>
    </message>
    <message>
        <source>Your email settings have not been configured.  Please go to Options and click the Email tab to set up your outbound email</source>
        <translation>Ihre E-Mail-Einstellungen sind noch nicht eingerichtet.  Bitte öffnen Sie die Optionen und richten Sie auf der Registerkarte E-Mail Ihren Postausgang ein</translation>
    </message>
    <message>
        <source>Email Settings Required</source>
        <translation>E-Mail-Einstellungen erforderlich</translation>
    </message>
    <message>
        <source>Please provide an email address</source>
        <translation>Bitte geben Sie eine E-Mail-Adresse an</translation>
    </message>
    <message>
        <source>Missing Email</source>
        <translation>E-Mail-Adresse fehlt</translation>
    </message>
    <message>
        <source>Receipt has been sent</source>
        <translation>Die Quittung wurde gesendet</translation>
    </message>
    <message>
        <source>Email Receipt</source>
        <translation>Quittung per E-Mail senden</translation>
    </message>
</context>
</TS>
