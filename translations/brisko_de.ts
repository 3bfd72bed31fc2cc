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
    <name>CompanySetup</name>
    <message>
        <source>State/Province</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Invalid property array index</source>
        <translation>Ungültiger Index für Eigenschaftenfeld</translation>
    </message>
    <message>
        <source>Invalid tax rate.  Use format 0.00 and do not include the %</source>
        <translation>Ungültiger Steuersatz.  Verwenden Sie das Format 0.00 und geben Sie das % nicht mit ein</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
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
    <message>
        <source>Address 2</source>
        <translation>Adresszusatz</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>PLZ</translation>
    </message>
</context>
<context>
    <name>CustomerTransactionsModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Receipt #</source>
        <translation>Quittungsnr.</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Sale</source>
        <translation>Verkauf</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Void</source>
        <translation>Storno</translation>
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
    <name>JournalModel</name>
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
        <source>Status</source>
        <translation>Status</translation>
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
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
    <name>ReportParameterDialog</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>ReportPreview</name>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
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
    <message>
        <source>&lt; Pre&amp;vious</source>
        <translation>&lt; Zu&amp;rück</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
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
    <name>backupDatabase</name>
    <message>
        <source>Backup Filename</source>
        <translation>Name der Sicherungsdatei</translation>
    </message>
    <message>
        <source>Brisko Backup Files (*.db)</source>
        <translation>Brisko-Sicherungsdateien (*.db)</translation>
    </message>
    <message>
        <source>You can not use the name bdesk.db.  Please enter a different name for your backup file.</source>
        <translation>Der Name bdesk.db kann nicht verwendet werden.  Bitte geben Sie einen anderen Namen für die Sicherungsdatei ein.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1 already exists.  Do you wish to overwrite this file?</source>
        <translation>%1 ist bereits vorhanden.  Möchten Sie diese Datei überschreiben?</translation>
    </message>
    <message>
        <source>Existing Backup File</source>
        <translation>Vorhandene Sicherungsdatei</translation>
    </message>
    <message>
        <source>Error occured during the database backup.  Error: </source>
        <translation>Beim Sichern der Datenbank ist ein Fehler aufgetreten.  Fehler: </translation>
    </message>
    <message>
        <source>Backup operation completed.</source>
        <translation>Die Sicherung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Abgeschlossen</translation>
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
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmCustProp</name>
    <message>
        <source>Customer Properties</source>
        <translation>Kundeneigenschaften</translation>
    </message>
    <message>
        <source>Customer tabs</source>
        <translation>Registerkarten des Kunden</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation>Kunde:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>You can not change customer information</source>
        <translation>Sie können die Kundendaten nicht ändern</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>A&amp;dresse:</translation>
    </message>
    <message>
        <source>Address&amp;2:</source>
        <translation>Adress&amp;zusatz:</translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>S&amp;tate/Province:</source>
        <translation>&amp;Bundesland:</translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation>&amp;PLZ:</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>E&amp;mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Account Balance:</source>
        <translation>Kontostand:</translation>
    </message>
    <message>
        <source>&amp;Starting Balance:</source>
        <translation>Anfangs&amp;saldo:</translation>
    </message>
    <message>
        <source>Current Balance:</source>
        <translation>Aktueller Saldo:</translation>
    </message>
    <message>
        <source>T&amp;ransactions</source>
        <translation>B&amp;uchungen</translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation>Buchungen</translation>
    </message>
    <message>
        <source>States and provinces</source>
        <translation>Bundesländer</translation>
    </message>
    <message>
        <source>Transaction columns</source>
        <translation>Spalten der Buchungsliste</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation>Kunde löschen</translation>
    </message>
    <message>
        <source>Reassign</source>
        <translation>Neu zuordnen</translation>
    </message>
    <message>
        <source>An error occured while loading customer information:  </source>
        <translation>Beim Laden der Kundendaten ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>An error has occured </source>
        <translation>Ein Fehler ist aufgetreten </translation>
    </message>
    <message>
        <source>Changes were not saved</source>
        <translation>Die Änderungen wurden nicht gespeichert</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Customer record updated</source>
        <translation>Der Kundendatensatz wurde aktualisiert</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>ARE YOU SURE YOU WANT TO REMOVE THIS CUSTOMER?  This action will permanently remove the customer and all receipts for this customer.  This action can not be reversed!</source>
        <translation>MÖCHTEN SIE DIESEN KUNDEN WIRKLICH ENTFERNEN?  Dabei werden der Kunde und alle seine Quittungen endgültig entfernt.  Dieser Vorgang kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>Delete Customer and Receipts</source>
        <translation>Kunde und Quittungen löschen</translation>
    </message>
    <message>
        <source>An occured while deleting the customer&apos;s receipts.  This process will abort.</source>
        <translation>Beim Löschen der Quittungen des Kunden ist ein Fehler aufgetreten.  Der Vorgang wird abgebrochen.</translation>
    </message>
    <message>
        <source>The customer record was note deleted</source>
        <translation>Der Kundendatensatz wurde nicht gelöscht</translation>
    </message>
    <message>
        <source>Customer record deleted</source>
        <translation>Der Kundendatensatz wurde gelöscht</translation>
    </message>
    <message>
        <source>You cannot reassign receipts to the same customer.  Please try again.</source>
        <translation>Quittungen können nicht demselben Kunden neu zugeordnet werden.  Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Complete.  %1 record(s) were reassigned.</source>
        <translation>Abgeschlossen.  Neu zugeordnete Datensätze: %1.</translation>
    </message>
    <message>
        <source>Reassign Receipts</source>
        <translation>Quittungen neu zuordnen</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
</context>
<context>
    <name>frmCustomSearchProp</name>
    <message>
        <source>Custom Search Properties</source>
        <translation>Suche in Zusatzfeldern</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Custom Field %1</source>
        <translation>Zusatzfeld %1</translation>
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
        <source>Search Options:</source>
        <translation>Suchoptionen:</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
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
    <message>
        <source>Retrieve &amp;All</source>
        <translation>&amp;Alle anzeigen</translation>
    </message>
    <message>
        <source>&amp;Begins With</source>
        <translation>&amp;Beginnt mit</translation>
    </message>
    <message>
        <source>Appears &amp;in Any</source>
        <translation>&amp;Enthält</translation>
    </message>
    <message>
        <source>&amp;Ends With</source>
        <translation>Endet &amp;mit</translation>
    </message>
    <message>
        <source>&amp;Customers:</source>
        <translation>&amp;Kunden:</translation>
    </message>
</context>
<context>
    <name>frmItem</name>
    <message>
        <source>New Item</source>
        <translation>Neue Position</translation>
    </message>
    <message>
        <source>Item Details:</source>
        <translation>Positionsdetails:</translation>
    </message>
    <message>
        <source>&amp;ID:</source>
        <translation>&amp;ID:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>E&amp;xt Desc:</source>
        <translation>&amp;Zusatztext:</translation>
    </message>
    <message>
        <source>Unit &amp;Price:</source>
        <translation>S&amp;tückpreis:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Menge:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Lookup</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>&amp;New Item</source>
        <translation>&amp;Neuer Artikel</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>frmItem.loadProducts:  </source>
        <translation>frmItem.loadProducts:  </translation>
    </message>
    <message>
        <source>Edit Line Item</source>
        <translation>Position bearbeiten</translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation>Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>Item ID Not Found</source>
        <translation>Artikel-ID nicht gefunden</translation>
    </message>
    <message>
        <source>Product ID not found.  Do you want to add this product ID to the database and continue?</source>
        <translation>Die Artikel-ID wurde nicht gefunden.  Möchten Sie diese Artikel-ID in die Datenbank aufnehmen und fortfahren?</translation>
    </message>
    <message>
        <source>New Product</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>Invalid Product ID entered.  Please enter a valid product ID or click Lookup to search.</source>
        <translation>Ungültige Artikel-ID.  Bitte geben Sie eine gültige Artikel-ID ein oder klicken Sie auf Suchen, um danach zu suchen.</translation>
    </message>
    <message>
        <source>Invalid Product ID</source>
        <translation>Ungültige Artikel-ID</translation>
    </message>
    <message>
        <source>Invalid quantity.  Please enter only digits in this field</source>
        <translation>Ungültige Menge.  Bitte geben Sie in dieses Feld nur Ziffern ein</translation>
    </message>
    <message>
        <source>Invalid Quantity</source>
        <translation>Ungültige Menge</translation>
    </message>
    <message>
        <source>Quantity must be greater than 0</source>
        <translation>Die Menge muss größer als 0 sein</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Invalid Unit Cost.  Please enter a valid amount</source>
        <translation>Ungültiger Stückpreis.  Bitte geben Sie einen gültigen Betrag ein</translation>
    </message>
    <message>
        <source>Invalid Unit Cost</source>
        <translation>Ungültiger Stückpreis</translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message>
        <source>Receipt Journal</source>
        <translation>Quittungsjournal</translation>
    </message>
    <message>
        <source>Dates:</source>
        <translation>Zeitraum:</translation>
    </message>
    <message>
        <source>S&amp;tart Date:</source>
        <translation>Start&amp;datum:</translation>
    </message>
    <message>
        <source>&amp;End Date:</source>
        <translation>&amp;Enddatum:</translation>
    </message>
    <message>
        <source>&amp;All Dates</source>
        <translation>&amp;Alle Zeiträume</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Suche:</translation>
    </message>
    <message>
        <source>Customer &amp;Name:</source>
        <translation>Kunden&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Receipt Number:</source>
        <translation>&amp;Quittungsnummer:</translation>
    </message>
    <message>
        <source>&amp;Open Balances</source>
        <translation>&amp;Offene Salden</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Custom Fields:</source>
        <translation>Zusatzfelder:</translation>
    </message>
    <message>
        <source>A&amp;dd Fields</source>
        <translation>Felder &amp;hinzufügen</translation>
    </message>
    <message>
        <source>C&amp;lear Fields</source>
        <translation>Felder &amp;leeren</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Quittungen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Print Receipt</source>
        <translation>Quittung drucken</translation>
    </message>
    <message>
        <source>Change Status</source>
        <translation>Status ändern</translation>
    </message>
    <message>
        <source>Delete Receipt</source>
        <translation>Quittung löschen</translation>
    </message>
    <message>
        <source>View Receipt</source>
        <translation>Quittung anzeigen</translation>
    </message>
    <message>
        <source>Receipt columns</source>
        <translation>Spalten der Quittungsliste</translation>
    </message>
    <message>
        <source>frmJournal.getReceipts:  </source>
        <translation>frmJournal.getReceipts:  </translation>
    </message>
    <message>
        <source>Custom Fields:  (SET)</source>
        <translation>Zusatzfelder:  (GESETZT)</translation>
    </message>
    <message>
        <source>Custom search fields have been cleared</source>
        <translation>Die Suchwerte der Zusatzfelder wurden geleert</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Your account does not have rights to delete a receipt.  Please see your system administrator.</source>
        <translation>Ihr Konto hat keine Berechtigung, Quittungen zu löschen.  Bitte wenden Sie sich an Ihren Systemadministrator.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this receipt?</source>
        <translation>Möchten Sie diese Quittung wirklich löschen?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Receipt has been deleted!</source>
        <translation>Die Quittung wurde gelöscht!</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Are you sure you want to void this receipt?</source>
        <translation>Möchten Sie diese Quittung wirklich stornieren?</translation>
    </message>
    <message>
        <source>Could not void receipt</source>
        <translation>Die Quittung konnte nicht storniert werden</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Receipt has been voided!</source>
        <translation>Die Quittung wurde storniert!</translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation>Ctrl+Shift+P</translation>
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
    <name>frmLookup</name>
    <message>
        <source>Product Lookup</source>
        <translation>Artikelsuche</translation>
    </message>
    <message>
        <source>Product Name or ID:</source>
        <translation>Artikelname oder ID:</translation>
    </message>
    <message>
        <source>Product Name or ID</source>
        <translation>Artikelname oder ID</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>* To return all products, leave field empty.</source>
        <translation>* Lassen Sie das Feld leer, um alle Artikel anzuzeigen.</translation>
    </message>
    <message>
        <source>Products Found:</source>
        <translation>Gefundene Artikel:</translation>
    </message>
    <message>
        <source>Products Found</source>
        <translation>Gefundene Artikel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>SKU</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation>Artikelname</translation>
    </message>
    <message>
        <source>Product Desc</source>
        <translation>Artikelbeschreibung</translation>
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
        <source>Reprint Receipt</source>
        <translation>Quittung erneut drucken</translation>
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
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Sales this Month</source>
        <translation>Verkäufe in diesem Monat</translation>
    </message>
    <message>
        <source>&amp;Print Receipt</source>
        <translation>Quittung &amp;drucken</translation>
    </message>
    <message>
        <source>Print Previe&amp;w</source>
        <translation>Druck&amp;vorschau</translation>
    </message>
    <message>
        <source>&amp;Email Receipt</source>
        <translation>Quittung per &amp;E-Mail senden</translation>
    </message>
    <message>
        <source>&amp;View Receipt</source>
        <translation>Quittung &amp;anzeigen</translation>
    </message>
    <message>
        <source>&amp;Open Database</source>
        <translation>&amp;Datenbank öffnen</translation>
    </message>
    <message>
        <source>&amp;Backup Database</source>
        <translation>Datenbank &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Restore Database</source>
        <translation>Datenbank &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Multi-User Settings</source>
        <translation>&amp;Mehrbenutzer-Einstellungen</translation>
    </message>
    <message>
        <source>&amp;New Receipt</source>
        <translation>&amp;Neue Quittung</translation>
    </message>
    <message>
        <source>Receipt &amp;Journal</source>
        <translation>Quittungs&amp;journal</translation>
    </message>
    <message>
        <source>&amp;Customers</source>
        <translation>&amp;Kunden</translation>
    </message>
    <message>
        <source>&amp;Update Receipt Status</source>
        <translation>Quittungs&amp;status ändern</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Service Descriptions</source>
        <translation>&amp;Leistungsbeschreibungen</translation>
    </message>
    <message>
        <source>&amp;Inventory</source>
        <translation>&amp;Warenbestand</translation>
    </message>
    <message>
        <source>&amp;Payment Methods</source>
        <translation>&amp;Zahlungsarten</translation>
    </message>
    <message>
        <source>&amp;Receipt Ledger</source>
        <translation>&amp;Quittungsübersicht</translation>
    </message>
    <message>
        <source>Service &amp;Breakdown Report</source>
        <translation>&amp;Leistungsaufschlüsselung</translation>
    </message>
    <message>
        <source>&amp;Service Ledger</source>
        <translation>Lei&amp;stungsübersicht</translation>
    </message>
    <message>
        <source>&amp;Inventory Sold</source>
        <translation>&amp;Verkaufte Artikel</translation>
    </message>
    <message>
        <source>Inventory Sold &amp;Detail</source>
        <translation>Verkaufte Artikel im &amp;Einzelnen</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>What&apos;s &amp;New?</source>
        <translation>Was ist &amp;neu?</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Nach &amp;Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>&amp;About Brisko</source>
        <translation>Ü&amp;ber Brisko</translation>
    </message>
    <message>
        <source>&amp;Maintenance</source>
        <translation>&amp;Verwaltung</translation>
    </message>
</context>
<context>
    <name>frmMultiUser</name>
    <message>
        <source>Multi-User Settings</source>
        <translation>Mehrbenutzer-Einstellungen</translation>
    </message>
    <message>
        <source>Shared File Location:</source>
        <translation>Speicherort der gemeinsamen Datei:</translation>
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
    <message>
        <source>Select &amp;Local or Shared Database:</source>
        <translation>&amp;Lokale oder gemeinsame Datenbank wählen:</translation>
    </message>
    <message>
        <source>Use &amp;stand-alone database</source>
        <translation>&amp;Einzelplatz-Datenbank verwenden</translation>
    </message>
    <message>
        <source>Use a s&amp;hared database</source>
        <translation>&amp;Gemeinsame Datenbank verwenden</translation>
    </message>
    <message>
        <source>Shared &amp;File Location:</source>
        <translation>&amp;Speicherort der gemeinsamen Datei:</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>Durc&amp;hsuchen</translation>
    </message>
    <message>
        <source>Co&amp;py current stand-alone database to shared location.</source>
        <translation>Aktuelle Einzelplatz-Datenbank an den gemeinsamen Speicherort &amp;kopieren.</translation>
    </message>
    <message>
        <source>&amp;Remove Share File Lock</source>
        <translation>Sperre der gemeinsamen Datei a&amp;ufheben</translation>
    </message>
</context>
<context>
    <name>frmNewCompany</name>
    <message>
        <source>New Company Setup</source>
        <translation>Einrichtung der Firma</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Welcome to Brisko Desk!</source>
        <translation>Willkommen bei Brisko Desk!</translation>
    </message>
    <message>
        <source>font-size: 16pt; font-weight: bold;</source>
        <translation>font-size: 16pt; font-weight: bold;</translation>
    </message>
    <message>
        <source>This wizard will help you set up your company information and other options.  You can always changes these settings  by going to File-&gt;Options from the main screen.</source>
        <translation>Dieser Assistent hilft Ihnen, Ihre Firmendaten und weitere Optionen einzurichten.  Sie können diese Einstellungen  jederzeit im Hauptfenster unter Datei-&gt;Optionen ändern.</translation>
    </message>
    <message>
        <source>Use &amp;Shared Database</source>
        <translation>&amp;Gemeinsame Datenbank verwenden</translation>
    </message>
    <message>
        <source>&amp;Next  &gt;&gt;</source>
        <translation>&amp;Weiter  &gt;&gt;</translation>
    </message>
    <message>
        <source>Company Information</source>
        <translation>Firmendaten</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>A&amp;dresse:</translation>
    </message>
    <message>
        <source>A&amp;ddress 2:</source>
        <translation>Adresszu&amp;satz:</translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation>&amp;Bundesland:</translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation>&amp;PLZ:</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Back</source>
        <translation>&lt;&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>Default &amp;Payment Type:</source>
        <translation>Standard-Zahlungs&amp;art:</translation>
    </message>
    <message>
        <source>Default Receipt Type:</source>
        <translation>Standard-Quittungsart:</translation>
    </message>
    <message>
        <source>Pr&amp;oducts</source>
        <translation>A&amp;rtikel</translation>
    </message>
    <message>
        <source>S&amp;ervices</source>
        <translation>&amp;Leistungen</translation>
    </message>
    <message>
        <source>&amp;Tax Rate:</source>
        <translation>&amp;Steuersatz:</translation>
    </message>
    <message>
        <source>0.00</source>
        <translation>0.00</translation>
    </message>
    <message>
        <source>Security:</source>
        <translation>Sicherheit:</translation>
    </message>
    <message>
        <source>&amp;Username/Password</source>
        <translation>&amp;Benutzername/Kennwort</translation>
    </message>
    <message>
        <source>Open S&amp;ystem</source>
        <translation>&amp;Offenes System</translation>
    </message>
    <message>
        <source>Default User&amp;name:</source>
        <translation>Standard-Benutzer&amp;name:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>An error has occured </source>
        <translation>Ein Fehler ist aufgetreten </translation>
    </message>
    <message>
        <source>You must complete this process to use Brisko.  Are you sure you want to cancel this process?  </source>
        <translation>Sie müssen diesen Vorgang abschließen, um Brisko verwenden zu können.  Möchten Sie ihn wirklich abbrechen?  </translation>
    </message>
    <message>
        <source>Abort Wizard</source>
        <translation>Assistent abbrechen</translation>
    </message>
    <message>
        <source>Please enter the name of your company.</source>
        <translation>Bitte geben Sie den Namen Ihrer Firma ein.</translation>
    </message>
    <message>
        <source>Missing Company Name</source>
        <translation>Firmenname fehlt</translation>
    </message>
    <message>
        <source>Please enter a default username and password for the administrator.</source>
        <translation>Bitte geben Sie einen Standard-Benutzernamen und ein Kennwort für den Administrator ein.</translation>
    </message>
    <message>
        <source>Missing Admin Username/Password</source>
        <translation>Benutzername/Kennwort des Administrators fehlt</translation>
    </message>
    <message>
        <source>The default user account has been created.  You will need to log into Brisko with this account where you can set up additional user accounts.</source>
        <translation>Das Standard-Benutzerkonto wurde angelegt.  Melden Sie sich mit diesem Konto bei Brisko an; dort können Sie weitere Benutzerkonten einrichten.</translation>
    </message>
    <message>
        <source>Admin Account Created</source>
        <translation>Administratorkonto angelegt</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Company Na&amp;me:</source>
        <translation>Firmenna&amp;me:</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Company &amp;Name:</source>
        <translation>Firmen&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>A&amp;dresse:</translation>
    </message>
    <message>
        <source>A&amp;ddress 2:</source>
        <translation>Adress&amp;zusatz:</translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation>&amp;Bundesland:</translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation>&amp;PLZ:</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Quittung</translation>
    </message>
    <message>
        <source>Receipt &amp;Number Format:</source>
        <translation>&amp;Format der Quittungsnummer:</translation>
    </message>
    <message>
        <source>Example:  mmyy [0000]</source>
        <translation>Beispiel:  mmyy [0000]</translation>
    </message>
    <message>
        <source>&amp;Tagline:</source>
        <translation>&amp;Slogan:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Use 3&quot; POS &amp;Receipt Printer Format</source>
        <translation>Format für 3-Zoll-&amp;Bondrucker verwenden</translation>
    </message>
    <message>
        <source>Hide &amp;Discount field</source>
        <translation>&amp;Rabattfeld ausblenden</translation>
    </message>
    <message>
        <source>Use customer a&amp;uto-complete</source>
        <translation>Kunden automatisch &amp;vervollständigen</translation>
    </message>
    <message>
        <source>Hide account &amp;balance on print</source>
        <translation>&amp;Kontostand beim Drucken ausblenden</translation>
    </message>
    <message>
        <source>Require customer address &amp;information</source>
        <translation>Kunden&amp;adresse verlangen</translation>
    </message>
    <message>
        <source>Restart receipt numbering &amp;each year</source>
        <translation>Quittungsnummern jedes &amp;Jahr neu beginnen</translation>
    </message>
    <message>
        <source>Hide sales ta&amp;x on print</source>
        <translation>St&amp;euer beim Drucken ausblenden</translation>
    </message>
    <message>
        <source>&quot;&amp;Other&quot; Field Name:</source>
        <translation>Bezeichnung des Felds „S&amp;onstiges“:</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Tax Rate:</source>
        <translation>Steuersatz:</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Tax is &amp;not charged</source>
        <translation>&amp;Keine Steuer berechnen</translation>
    </message>
    <message>
        <source>Payment Type:</source>
        <translation>Zahlungsart:</translation>
    </message>
    <message>
        <source>Payment Type</source>
        <translation>Zahlungsart</translation>
    </message>
    <message>
        <source>Receipt Type:</source>
        <translation>Quittungsart:</translation>
    </message>
    <message>
        <source>&amp;Products</source>
        <translation>&amp;Artikel</translation>
    </message>
    <message>
        <source>&amp;Services</source>
        <translation>&amp;Leistungen</translation>
    </message>
    <message>
        <source>Currency Symbol:</source>
        <translation>Währungssymbol:</translation>
    </message>
    <message>
        <source>Currency Symbol</source>
        <translation>Währungssymbol</translation>
    </message>
    <message>
        <source>Custom S&amp;ymbol:</source>
        <translation>Eigenes S&amp;ymbol:</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Current Logo:</source>
        <translation>Aktuelles Logo:</translation>
    </message>
    <message>
        <source>Current Logo</source>
        <translation>Aktuelles Logo</translation>
    </message>
    <message>
        <source>Logo &amp;File:</source>
        <translation>Logo-&amp;Datei:</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>Durch&amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Clear Logo</source>
        <translation>Logo &amp;entfernen</translation>
    </message>
    <message>
        <source>Size your logo to 360 x 360</source>
        <translation>Empfohlene Logogröße: 360 x 360</translation>
    </message>
    <message>
        <source>Custom Fields</source>
        <translation>Zusatzfelder</translation>
    </message>
    <message>
        <source>Custom Fields:</source>
        <translation>Zusatzfelder:</translation>
    </message>
    <message>
        <source>Field &amp;1:</source>
        <translation>Feld &amp;1:</translation>
    </message>
    <message>
        <source>Field &amp;2:</source>
        <translation>Feld &amp;2:</translation>
    </message>
    <message>
        <source>Field &amp;3:</source>
        <translation>Feld &amp;3:</translation>
    </message>
    <message>
        <source>Field &amp;4:</source>
        <translation>Feld &amp;4:</translation>
    </message>
    <message>
        <source>Field &amp;5:</source>
        <translation>Feld &amp;5:</translation>
    </message>
    <message>
        <source>Field &amp;6:</source>
        <translation>Feld &amp;6:</translation>
    </message>
    <message>
        <source>Use caution when changing custom fields as this will affect previously created receipts.</source>
        <translation>Ändern Sie Zusatzfelder mit Vorsicht, da sich dies auf bereits erstellte Quittungen auswirkt.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Program Access:</source>
        <translation>Programmzugriff:</translation>
    </message>
    <message>
        <source>&amp;Open System</source>
        <translation>&amp;Offenes System</translation>
    </message>
    <message>
        <source>&amp;Username/Password</source>
        <translation>&amp;Benutzername/Kennwort</translation>
    </message>
    <message>
        <source>U&amp;sers:</source>
        <translation>Be&amp;nutzer:</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>&amp;Add User</source>
        <translation>Benutzer &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete User</source>
        <translation>Benutzer &amp;löschen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Outgoing Mail (SMTP) Server:</source>
        <translation>Postausgangsserver (SMTP):</translation>
    </message>
    <message>
        <source>Se&amp;rver:</source>
        <translation>Se&amp;rver:</translation>
    </message>
    <message>
        <source>&amp;Email:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>110</source>
        <translation>110</translation>
    </message>
    <message>
        <source>Requires &amp;Authentication</source>
        <translation>&amp;Authentifizierung erforderlich</translation>
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
        <source>Requires SSL or &amp;TLS</source>
        <translation>SSL oder &amp;TLS erforderlich</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;configure-mail-server-settings&quot;&gt;How do I configure my email settings?&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;configure-mail-server-settings&quot;&gt;Wie richte ich meine E-Mail-Einstellungen ein?&lt;/a&gt;</translation>
    </message>
    <message>
        <source>How do I configure my email settings?</source>
        <translation>Wie richte ich meine E-Mail-Einstellungen ein?</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No symbol</source>
        <translation>Kein Symbol</translation>
    </message>
    <message>
        <source>Euro </source>
        <translation>Euro </translation>
    </message>
    <message>
        <source>Japan </source>
        <translation>Japan </translation>
    </message>
    <message>
        <source>USA </source>
        <translation>USA </translation>
    </message>
    <message>
        <source>UK Pound </source>
        <translation>Britisches Pfund </translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Syntax:
mm = Month
dd = Day
yy = Year(2), yyyy = Year (4)
0 = digit placeholder, place within []
</source>
        <translation>Syntax:
mm = Monat
dd = Tag
yy = Jahr (2-stellig), yyyy = Jahr (4-stellig)
0 = Ziffernplatzhalter, in [] setzen
</translation>
    </message>
    <message>
        <source>Admin</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Options have been changed.  Brisko Desk will now restart.</source>
        <translation>Die Optionen wurden geändert.  Brisko Desk wird jetzt neu gestartet.</translation>
    </message>
    <message>
        <source>Multi-User</source>
        <translation>Mehrbenutzer</translation>
    </message>
    <message>
        <source>Receipt Number Format is a required field.</source>
        <translation>Das Format der Quittungsnummer ist ein Pflichtfeld.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Invalid receipt number format.  The format must contain at least one digit placeholder within brackets.  
Example:  yy-[00]</source>
        <translation>Ungültiges Format der Quittungsnummer.  Das Format muss mindestens einen Ziffernplatzhalter in eckigen Klammern enthalten.  
Beispiel:  yy-[00]</translation>
    </message>
    <message>
        <source>Digit placeholders are not properly formatted.  Digit placeholders must begin with a left bracket and close with a right bracket.  Only 0s are permitted within the brackets.</source>
        <translation>Die Ziffernplatzhalter sind nicht richtig formatiert.  Ziffernplatzhalter müssen mit einer öffnenden eckigen Klammer beginnen und mit einer schließenden eckigen Klammer enden.  Innerhalb der Klammern sind nur Nullen erlaubt.</translation>
    </message>
    <message>
        <source>You must create at least one Admin user because you have chosen to restrict system access.</source>
        <translation>Sie müssen mindestens einen Administrator anlegen, da Sie den Systemzugriff eingeschränkt haben.</translation>
    </message>
    <message>
        <source>No Users Found</source>
        <translation>Keine Benutzer gefunden</translation>
    </message>
    <message>
        <source>Browse for Images</source>
        <translation>Bild auswählen</translation>
    </message>
    <message>
        <source>Image Files (*.jpg)</source>
        <translation>Bilddateien (*.jpg)</translation>
    </message>
    <message>
        <source>Only .jpg files can be used.  Please select a different file.</source>
        <translation>Es können nur .jpg-Dateien verwendet werden.  Bitte wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Ungültige Datei</translation>
    </message>
    <message>
        <source>This will remove your current logo.  Do you want to proceed?</source>
        <translation>Dadurch wird Ihr aktuelles Logo entfernt.  Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Confirm Replace</source>
        <translation>Ersetzen bestätigen</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Logo has been imported!</source>
        <translation>Das Logo wurde importiert!</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this logo?</source>
        <translation>Möchten Sie dieses Logo wirklich löschen?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this user account?</source>
        <translation>Möchten Sie dieses Benutzerkonto wirklich entfernen?</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
</context>
<context>
    <name>frmPayMethod</name>
    <message>
        <source>Payment Method Admin</source>
        <translation>Zahlungsarten verwalten</translation>
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
    <message>
        <source>&amp;Payment Methods:</source>
        <translation>&amp;Zahlungsarten:</translation>
    </message>
    <message>
        <source>Method &amp;Name:</source>
        <translation>&amp;Bezeichnung:</translation>
    </message>
    <message>
        <source>Ac&amp;tive</source>
        <translation>Akti&amp;v</translation>
    </message>
    <message>
        <source>&amp;Inactive</source>
        <translation>&amp;Inaktiv</translation>
    </message>
</context>
<context>
    <name>frmPrintOption</name>
    <message>
        <source>Print &amp; Email</source>
        <translation>Drucken &amp; E-Mail</translation>
    </message>
    <message>
        <source>Email &amp;Address:</source>
        <translation>E-Mail-&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Receipt Number </source>
        <translation>Quittungsnummer </translation>
    </message>
    <message>
        <source> has beeen saved.</source>
        <translation> wurde gespeichert.</translation>
    </message>
</context>
<context>
    <name>frmProductManagement</name>
    <message>
        <source>Inventory</source>
        <translation>Warenbestand</translation>
    </message>
    <message>
        <source>Press Enter to search</source>
        <translation>Zum Suchen die Eingabetaste drücken</translation>
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
        <source>Status:</source>
        <translation>Status:</translation>
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
    <message>
        <source>&amp;Products:</source>
        <translation>&amp;Artikel:</translation>
    </message>
    <message>
        <source>Sea&amp;rch:</source>
        <translation>Such&amp;e:</translation>
    </message>
    <message>
        <source>S&amp;how Inactive</source>
        <translation>Inaktive an&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;ID:</source>
        <translation>&amp;ID:</translation>
    </message>
    <message>
        <source>Descrip&amp;tion:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Unit Price:</source>
        <translation>Stück&amp;preis:</translation>
    </message>
    <message>
        <source>Inacti&amp;ve</source>
        <translation>Ina&amp;ktiv</translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation>Akti&amp;v</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
</context>
<context>
    <name>frmReceipt</name>
    <message>
        <source>New Receipt</source>
        <translation>Neue Quittung</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Quittung</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation>Kunde:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <source>Add&amp;ress:</source>
        <translation>A&amp;dresse:</translation>
    </message>
    <message>
        <source>Address&amp;2:</source>
        <translation>Adress&amp;zusatz:</translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation>&amp;Bundesland:</translation>
    </message>
    <message>
        <source>Posta&amp;l:</source>
        <translation>&amp;PLZ:</translation>
    </message>
    <message>
        <source>P&amp;hone Number:</source>
        <translation>&amp;Telefonnummer:</translation>
    </message>
    <message>
        <source>&amp;Email:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Balance:</source>
        <translation>Saldo:</translation>
    </message>
    <message>
        <source>0.00</source>
        <translation>0.00</translation>
    </message>
    <message>
        <source>Receipt Type:</source>
        <translation>Quittungsart:</translation>
    </message>
    <message>
        <source>Prod&amp;uct Receipt</source>
        <translation>Artikel&amp;quittung</translation>
    </message>
    <message>
        <source>Service Recei&amp;pt</source>
        <translation>Le&amp;istungsquittung</translation>
    </message>
    <message>
        <source>Account Pay&amp;ment</source>
        <translation>&amp;Kontozahlung</translation>
    </message>
    <message>
        <source>Da&amp;te:</source>
        <translation>Dat&amp;um:</translation>
    </message>
    <message>
        <source>Products:</source>
        <translation>Artikel:</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Product ID</source>
        <translation>Artikel-ID</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Stückpreis</translation>
    </message>
    <message>
        <source>Unit Total</source>
        <translation>Gesamtpreis</translation>
    </message>
    <message>
        <source>Ext Description</source>
        <translation>Zusatztext</translation>
    </message>
    <message>
        <source>&amp;Add Product</source>
        <translation>Artikel &amp;hinzufügen</translation>
    </message>
    <message>
        <source>One or more product(s) required</source>
        <translation>Mindestens ein Artikel erforderlich</translation>
    </message>
    <message>
        <source>Service Provided:</source>
        <translation>Erbrachte Leistung:</translation>
    </message>
    <message>
        <source>Services Quick Pick List</source>
        <translation>Schnellauswahl der Leistungen</translation>
    </message>
    <message>
        <source>Amount Due:</source>
        <translation>Fälliger Betrag:</translation>
    </message>
    <message>
        <source>Payment:</source>
        <translation>Zahlung:</translation>
    </message>
    <message>
        <source>Pa&amp;yment Type:</source>
        <translation>Zahlungs&amp;art:</translation>
    </message>
    <message>
        <source>Payment Description:</source>
        <translation>Zahlungsvermerk:</translation>
    </message>
    <message>
        <source>Recei&amp;ved By:</source>
        <translation>Entgegengenommen &amp;von:</translation>
    </message>
    <message>
        <source>Void Reason:</source>
        <translation>Stornogrund:</translation>
    </message>
    <message>
        <source>Sub Total:</source>
        <translation>Zwischensumme:</translation>
    </message>
    <message>
        <source>Tax (0.000%):</source>
        <translation>Steuer (0.000%):</translation>
    </message>
    <message>
        <source>Ta&amp;x Exempt</source>
        <translation>Steuer&amp;frei</translation>
    </message>
    <message>
        <source>Other:</source>
        <translation>Sonstiges:</translation>
    </message>
    <message>
        <source>Disc&amp;ount:</source>
        <translation>&amp;Rabatt:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Gesamt:</translation>
    </message>
    <message>
        <source>Rece&amp;ived:</source>
        <translation>Erha&amp;lten:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Offen:</translation>
    </message>
    <message>
        <source>Custom Fields</source>
        <translation>Zusatzfelder</translation>
    </message>
    <message>
        <source>Save &amp;&amp; New</source>
        <translation>Speichern &amp;&amp; Neu</translation>
    </message>
    <message>
        <source>Save &amp;&amp; Close</source>
        <translation>Speichern &amp;&amp; Schließen</translation>
    </message>
    <message>
        <source>Matching customers</source>
        <translation>Passende Kunden</translation>
    </message>
    <message>
        <source>Clear customer</source>
        <translation>Kundenauswahl aufheben</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Edit Receipt</source>
        <translation>Quittung bearbeiten</translation>
    </message>
    <message>
        <source>Void Receipt</source>
        <translation>Quittung stornieren</translation>
    </message>
    <message>
        <source>Product columns</source>
        <translation>Spalten der Artikelliste</translation>
    </message>
    <message>
        <source>Tax (</source>
        <translation>Steuer (</translation>
    </message>
    <message>
        <source>%):</source>
        <translation>%):</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Custom field %1</source>
        <translation>Zusatzfeld %1</translation>
    </message>
    <message>
        <source>Load Service List</source>
        <translation>Leistungsliste laden</translation>
    </message>
    <message>
        <source>States and provinces</source>
        <translation>Bundesländer</translation>
    </message>
    <message>
        <source>Comments:</source>
        <translation>Bemerkungen:</translation>
    </message>
    <message>
        <source>Account Balance:</source>
        <translation>Kontostand:</translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation>Scheck-Nr.:</translation>
    </message>
    <message>
        <source>Payment Desc:</source>
        <translation>Zahlungsvermerk:</translation>
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
        <source>Receipt </source>
        <translation>Quittung </translation>
    </message>
    <message>
        <source> VOID - VOID - VOID</source>
        <translation> STORNIERT - STORNIERT - STORNIERT</translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation>Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>Customer columns</source>
        <translation>Spalten der Kundenliste</translation>
    </message>
    <message>
        <source>An error occured while searching for customers:  </source>
        <translation>Bei der Kundensuche ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>An error occured while loading customer information:  </source>
        <translation>Beim Laden der Kundendaten ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>Invalid dollar amount.  Use format 0.00</source>
        <translation>Ungültiger Betrag.  Verwenden Sie das Format 0.00</translation>
    </message>
    <message>
        <source>Save &amp;&amp; &amp;New</source>
        <translation>Speichern &amp;&amp; &amp;Neu</translation>
    </message>
    <message>
        <source>Save &amp;&amp; &amp;Close</source>
        <translation>Speichern &amp;&amp; S&amp;chließen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this line item?</source>
        <translation>Möchten Sie diese Position wirklich entfernen?</translation>
    </message>
    <message>
        <source>Remove Line item</source>
        <translation>Position entfernen</translation>
    </message>
    <message>
        <source>Please enter information in the required fields.</source>
        <translation>Bitte füllen Sie die Pflichtfelder aus.</translation>
    </message>
    <message>
        <source>Incomplete Form</source>
        <translation>Unvollständiges Formular</translation>
    </message>
    <message>
        <source>An error has occured while saving the receipt to the database:  </source>
        <translation>Beim Speichern der Quittung in der Datenbank ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>You have changed the address for this customer.  </source>
        <translation>Sie haben die Adresse dieses Kunden geändert.  </translation>
    </message>
    <message>
        <source>Click YES to update the customer&apos;s account with the new information.</source>
        <translation>Klicken Sie auf JA, um das Kundenkonto mit den neuen Angaben zu aktualisieren.</translation>
    </message>
    <message>
        <source>Click NO to create a new customer account.</source>
        <translation>Klicken Sie auf NEIN, um ein neues Kundenkonto anzulegen.</translation>
    </message>
    <message>
        <source>If you create a new account, the customer&apos;s account balance WILL NOT be transferred to the new account.</source>
        <translation>Wenn Sie ein neues Konto anlegen, wird der Kontostand des Kunden NICHT auf das neue Konto übertragen.</translation>
    </message>
    <message>
        <source>Existing Customer Found</source>
        <translation>Vorhandener Kunde gefunden</translation>
    </message>
    <message>
        <source>Are you sure you want to void this receipt?</source>
        <translation>Möchten Sie diese Quittung wirklich stornieren?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Void Reason</source>
        <translation>Stornogrund</translation>
    </message>
    <message>
        <source>Could not void receipt</source>
        <translation>Die Quittung konnte nicht storniert werden</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Receipt has been voided!</source>
        <translation>Die Quittung wurde storniert!</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel this receipt?  Your information will not be saved.</source>
        <translation>Möchten Sie diese Quittung wirklich verwerfen?  Ihre Angaben werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Cancel Receipt</source>
        <translation>Quittung verwerfen</translation>
    </message>
</context>
<context>
    <name>frmReports</name>
    <message>
        <source>Report Manager</source>
        <translation>Berichtsverwaltung</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>Berichte:</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>&amp;Run Report</source>
        <translation>Bericht &amp;ausführen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Load Reports</source>
        <translation>Berichte laden</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
</context>
<context>
    <name>frmReprint</name>
    <message>
        <source>Reprint Receipt</source>
        <translation>Quittung erneut drucken</translation>
    </message>
    <message>
        <source>&amp;Last Receipt Entered</source>
        <translation>&amp;Zuletzt erfasste Quittung</translation>
    </message>
    <message>
        <source>&amp;Specific Receipt Number</source>
        <translation>&amp;Bestimmte Quittungsnummer</translation>
    </message>
    <message>
        <source>Receipt Number:</source>
        <translation>Quittungsnummer:</translation>
    </message>
    <message>
        <source>&amp;Display Only</source>
        <translation>Nur &amp;anzeigen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation>Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>No receipts were found in the database.</source>
        <translation>In der Datenbank wurden keine Quittungen gefunden.</translation>
    </message>
    <message>
        <source>Print Receipt</source>
        <translation>Quittung drucken</translation>
    </message>
    <message>
        <source>Receipt number entered was not found.  Please try again.</source>
        <translation>Die eingegebene Quittungsnummer wurde nicht gefunden.  Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unknown Receipt Number</source>
        <translation>Unbekannte Quittungsnummer</translation>
    </message>
    <message>
        <source>Receipt &amp;Number:</source>
        <translation>Quittungs&amp;nummer:</translation>
    </message>
</context>
<context>
    <name>frmService</name>
    <message>
        <source>Manage Services</source>
        <translation>Leistungen verwalten</translation>
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
    <message>
        <source>Ser&amp;vices:</source>
        <translation>Leistun&amp;gen:</translation>
    </message>
    <message>
        <source>Short &amp;Name:</source>
        <translation>Kurz&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Receipt Description:</source>
        <translation>&amp;Quittungstext:</translation>
    </message>
    <message>
        <source>Default C&amp;ost:</source>
        <translation>Standard&amp;preis:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>frmVoid</name>
    <message>
        <source>Change Receipt Status</source>
        <translation>Quittungsstatus ändern</translation>
    </message>
    <message>
        <source>Receipt Number:</source>
        <translation>Quittungsnummer:</translation>
    </message>
    <message>
        <source>&amp;Retrieve</source>
        <translation>Ab&amp;rufen</translation>
    </message>
    <message>
        <source>Current Status:</source>
        <translation>Aktueller Status:</translation>
    </message>
    <message>
        <source>New Status:</source>
        <translation>Neuer Status:</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>Ak&amp;tualisieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>This year&apos;s receipts</source>
        <translation>Quittungen dieses Jahres</translation>
    </message>
    <message>
        <source>Statuses</source>
        <translation>Statuswerte</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Ausgestellt</translation>
    </message>
    <message>
        <source>Void</source>
        <translation>Storniert</translation>
    </message>
    <message>
        <source>frmJournal.getReceipts:  </source>
        <translation>frmJournal.getReceipts:  </translation>
    </message>
    <message>
        <source>An error occured while retrieving the receipt information:  </source>
        <translation>Beim Abrufen der Quittungsdaten ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>Receipt number not found.  Please try again.</source>
        <translation>Die Quittungsnummer wurde nicht gefunden.  Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Receipt Not Found</source>
        <translation>Quittung nicht gefunden</translation>
    </message>
    <message>
        <source>Void Reason</source>
        <translation>Stornogrund</translation>
    </message>
    <message>
        <source>Void Receipt</source>
        <translation>Quittung stornieren</translation>
    </message>
    <message>
        <source>An error occured while updating the receipt status:  </source>
        <translation>Beim Ändern des Quittungsstatus ist ein Fehler aufgetreten:  </translation>
    </message>
    <message>
        <source>Receipt status has been updated for receipt number </source>
        <translation>Quittungsstatus geändert für Quittungsnummer </translation>
    </message>
    <message>
        <source>Receipt status update failed for receipt number </source>
        <translation>Statusänderung fehlgeschlagen für Quittungsnummer </translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Receipt &amp;Number:</source>
        <translation>Quittungs&amp;nummer:</translation>
    </message>
    <message>
        <source>New &amp;Status:</source>
        <translation>Neuer &amp;Status:</translation>
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
<context>
    <name>openDatabaseDialog</name>
    <message>
        <source>Open Database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Database Files (*.db)</source>
        <translation>Datenbankdateien (*.db)</translation>
    </message>
</context>
<context>
    <name>restoreDatabase</name>
    <message>
        <source>Restore Database</source>
        <translation>Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>Brisko Backup Files (*.db);;All Files (*)</source>
        <translation>Brisko-Sicherungsdateien (*.db);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>You can not restore bdesk.db as it is the current database file.  Please choose a backup file.</source>
        <translation>bdesk.db kann nicht wiederhergestellt werden, da es die aktuelle Datenbankdatei ist.  Bitte wählen Sie eine Sicherungsdatei.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1 is not a Brisko database, or it is damaged.  Please choose a backup file.</source>
        <translation>%1 ist keine Brisko-Datenbank oder ist beschädigt.  Bitte wählen Sie eine Sicherungsdatei.</translation>
    </message>
    <message>
        <source>Warning!  You are about to replace the contents of your current database.  This action CAN NOT BE REVERSED.</source>
        <translation>Achtung!  Sie sind dabei, den Inhalt Ihrer aktuellen Datenbank zu ersetzen.  Dies kann NICHT RÜCKGÄNGIG GEMACHT WERDEN.</translation>
    </message>
    <message>
        <source>Are you sure you wish to continue?</source>
        <translation>Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Restore operation was canceled.</source>
        <translation>Die Wiederherstellung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Restored Canceled</source>
        <translation>Wiederherstellung abgebrochen</translation>
    </message>
    <message>
        <source>Could not restore database.  Error: </source>
        <translation>Die Datenbank konnte nicht wiederhergestellt werden.  Fehler: </translation>
    </message>
    <message>
        <source>Restore operation completed.  Brisko must now be restarted.</source>
        <translation>Die Wiederherstellung ist abgeschlossen.  Brisko muss jetzt neu gestartet werden.</translation>
    </message>
    <message>
        <source>Restore Complete</source>
        <translation>Wiederherstellung abgeschlossen</translation>
    </message>
</context>
</TS>
