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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid property array index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid tax rate.  Use format 0.00 and do not include the %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished">Fehler</translation>
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
    <name>CustomerMatchModel</name>
    <message>
        <source>Account ID</source>
        <translation type="unfinished">Kundennummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished">Adresse</translation>
    </message>
    <message>
        <source>Address 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City</source>
        <translation type="unfinished">Ort</translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished">Bundesland</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomerTransactionsModel</name>
    <message>
        <source>Date</source>
        <translation type="unfinished">Datum</translation>
    </message>
    <message>
        <source>Receipt #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished">Gesamt</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished">Datum</translation>
    </message>
    <message>
        <source>Receipt No.</source>
        <translation type="unfinished">Quittungsnr.</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation type="unfinished">Kundenname</translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished">Gesamt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished">Status</translation>
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
    <name>frmCustProp</name>
    <message>
        <source>Customer Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished">&amp;Name:</translation>
    </message>
    <message>
        <source>You can not change customer information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address&amp;2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tate/Province:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Starting Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;ransactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>States and provinces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reassign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
    <message>
        <source>An error occured while loading customer information:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>An error has occured </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes were not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished">Fehler</translation>
    </message>
    <message>
        <source>Customer record updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success</source>
        <translation type="unfinished">Erfolgreich</translation>
    </message>
    <message>
        <source>ARE YOU SURE YOU WANT TO REMOVE THIS CUSTOMER?  This action will permanently remove the customer and all receipts for this customer.  This action can not be reversed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Customer and Receipts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An occured while deleting the customer&apos;s receipts.  This process will abort.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The customer record was note deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer record deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot reassign receipts to the same customer.  Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete.  %1 record(s) were reassigned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reassign Receipts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCustomSearchProp</name>
    <message>
        <source>Custom Search Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished">&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Custom Field %1</source>
        <translation type="unfinished"></translation>
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
    <name>frmItem</name>
    <message>
        <source>New Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Details:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xt Desc:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit &amp;Price:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished">&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Lookup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Abbrechen</translation>
    </message>
    <message>
        <source>frmItem.loadProducts:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Line Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>Item ID Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product ID not found.  Do you want to add this product ID to the database and continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Product ID entered.  Please enter a valid product ID or click Lookup to search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Product ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid quantity.  Please enter only digits in this field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity must be greater than 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished">Fehler</translation>
    </message>
    <message>
        <source>Invalid Unit Cost.  Please enter a valid amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Unit Cost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message>
        <source>Receipt Journal</source>
        <translation type="unfinished">Quittungsjournal</translation>
    </message>
    <message>
        <source>Dates:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All Dates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search:</source>
        <translation type="unfinished">Suche:</translation>
    </message>
    <message>
        <source>Customer &amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Receipt Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Balances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished">&amp;Suchen</translation>
    </message>
    <message>
        <source>Custom Fields:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished">Druckvorschau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Receipt</source>
        <translation type="unfinished">Quittung drucken</translation>
    </message>
    <message>
        <source>Change Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Receipt</source>
        <translation type="unfinished">Quittung anzeigen</translation>
    </message>
    <message>
        <source>Receipt columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frmJournal.getReceipts:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Fields:  (SET)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom search fields have been cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your account does not have rights to delete a receipt.  Please see your system administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this receipt?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished">Bestätigen</translation>
    </message>
    <message>
        <source>Receipt has been deleted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to void this receipt?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not void receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt has been voided!</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name or ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name or ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished">&amp;Suchen</translation>
    </message>
    <message>
        <source>* To return all products, leave field empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products Found:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
    <message>
        <source>SKU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Desc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>No products found</source>
        <translation type="unfinished">Keine Artikel gefunden</translation>
    </message>
    <message>
        <source>Search Results</source>
        <translation type="unfinished">Suchergebnisse</translation>
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
    <name>frmNewCompany</name>
    <message>
        <source>New Company Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to Brisko Desk!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>font-size: 16pt; font-weight: bold;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This wizard will help you set up your company information and other options.  You can always changes these settings  by going to File-&gt;Options from the main screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;Shared Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Next  &gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company &amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ddress 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default &amp;Payment Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Receipt Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;oducts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ervices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tax Rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Username/Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open S&amp;ystem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default User&amp;name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must complete this process to use Brisko.  Are you sure you want to cancel this process?  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the name of your company.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing Company Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a default username and password for the administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing Admin Username/Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default user account has been created.  You will need to log into Brisko with this account where you can set up additional user accounts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Admin Account Created</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Options</source>
        <translation type="unfinished">Optionen</translation>
    </message>
    <message>
        <source>Company</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company &amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ddress 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zip/Postal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt &amp;Number Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example:  mmyy [0000]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tagline:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use 3&quot; POS &amp;Receipt Printer Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide &amp;Discount field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use customer a&amp;uto-complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide account &amp;balance on print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Require customer address &amp;information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart receipt numbering &amp;each year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide sales ta&amp;x on print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;&amp;Other&quot; Field Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax Rate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax is &amp;not charged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency Symbol:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom S&amp;ymbol:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Logo:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo &amp;File:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size your logo to 360 x 360</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Fields:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;3:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;4:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;5:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &amp;6:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use caution when changing custom fields as this will affect previously created receipts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program Access:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Username/Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U&amp;sers:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outgoing Mail (SMTP) Server:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;rver:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>110</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requires &amp;Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Username:</source>
        <translation type="unfinished">&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished">&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Requires SSL or &amp;TLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;a href=&quot;configure-mail-server-settings&quot;&gt;How do I configure my email settings?&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How do I configure my email settings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
    <message>
        <source>No symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euro </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japan </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USA </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UK Pound </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Syntax:
mm = Month
dd = Day
yy = Year(2), yyyy = Year (4)
0 = digit placeholder, place within []
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options have been changed.  Brisko Desk will now restart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-User</source>
        <translation type="unfinished">Mehrbenutzer</translation>
    </message>
    <message>
        <source>Receipt Number Format is a required field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished">Fehler</translation>
    </message>
    <message>
        <source>Invalid receipt number format.  The format must contain at least one digit placeholder within brackets.  
Example:  yy-[00]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digit placeholders are not properly formatted.  Digit placeholders must begin with a left bracket and close with a right bracket.  Only 0s are permitted within the brackets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must create at least one Admin user because you have chosen to restrict system access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Users Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.jpg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only .jpg files can be used.  Please select a different file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will remove your current logo.  Do you want to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo has been imported!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success</source>
        <translation type="unfinished">Erfolgreich</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this logo?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished">Bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this user account?</source>
        <translation type="unfinished"></translation>
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
    <name>frmPrintOption</name>
    <message>
        <source>Print &amp; Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email &amp;Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Number </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has beeen saved.</source>
        <translation type="unfinished"></translation>
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
    <name>frmReceipt</name>
    <message>
        <source>New Receipt</source>
        <translation type="unfinished">Neue Quittung</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished">&amp;Name:</translation>
    </message>
    <message>
        <source>Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add&amp;ress:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address&amp;2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;State/Province:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Posta&amp;l:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;hone Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID:</source>
        <translation type="unfinished">ID:</translation>
    </message>
    <message>
        <source>Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prod&amp;uct Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service Recei&amp;pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Pay&amp;ment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da&amp;te:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products:</source>
        <translation type="unfinished">Artikel:</translation>
    </message>
    <message>
        <source>Products</source>
        <translation type="unfinished">Artikel</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ext Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One or more product(s) required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service Provided:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Services Quick Pick List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Due:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;yment Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recei&amp;ved By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void Reason:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub Total:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax (0.000%):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ta&amp;x Exempt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc&amp;ount:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rece&amp;ived:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;&amp; New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;&amp; Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matching customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished">Druckvorschau</translation>
    </message>
    <message>
        <source>Edit Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Custom field %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Service List</source>
        <translation type="unfinished">Leistungsliste laden</translation>
    </message>
    <message>
        <source>States and provinces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comments:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check #:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Desc:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not retrieve service description.</source>
        <translation type="unfinished">Die Leistungsbeschreibung konnte nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished">Fehler</translation>
    </message>
    <message>
        <source>Receipt </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> VOID - VOID - VOID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured: </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten: </translation>
    </message>
    <message>
        <source>Customer columns</source>
        <translation type="unfinished">Spalten der Kundenliste</translation>
    </message>
    <message>
        <source>An error occured while searching for customers:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error occured while loading customer information:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid dollar amount.  Use format 0.00</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReports</name>
    <message>
        <source>Report Manager</source>
        <translation type="unfinished">Berichtsverwaltung</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished">&amp;Schließen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>Load Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReprint</name>
    <message>
        <source>Reprint Receipt</source>
        <translation type="unfinished">Quittung erneut drucken</translation>
    </message>
    <message>
        <source>&amp;Last Receipt Entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Specific Receipt Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished">&amp;Schließen</translation>
    </message>
    <message>
        <source>An error has occured:  </source>
        <translation type="unfinished">Ein Fehler ist aufgetreten:  </translation>
    </message>
    <message>
        <source>No receipts were found in the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Receipt</source>
        <translation type="unfinished">Quittung drucken</translation>
    </message>
    <message>
        <source>Receipt number entered was not found.  Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Receipt Number</source>
        <translation type="unfinished"></translation>
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
    <name>frmVoid</name>
    <message>
        <source>Change Receipt Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retrieve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished">&amp;Abbrechen</translation>
    </message>
    <message>
        <source>This year&apos;s receipts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished">Auswählen</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frmJournal.getReceipts:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error occured while retrieving the receipt information:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt number not found.  Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Void Receipt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error occured while updating the receipt status:  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt status has been updated for receipt number </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receipt status update failed for receipt number </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success</source>
        <translation type="unfinished">Erfolgreich</translation>
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
