<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
  <context>
    <name>Tamo</name>
    <message>
      <source>Edit Number</source>
      <translation>Nummer bearbeiten</translation>
    </message>
    <message>
      <source>Edit Title</source>
      <translation>Titel bearbeiten</translation>
    </message>
    <message>
      <source>Edit Subject</source>
      <translation>Betreff bearbeiten</translation>
    </message>
    <message>
      <source>Edit Date</source>
      <translation>Datum bearbeiten</translation>
    </message>
    <message>
      <source>Edit Due Date</source>
      <translation>Fälligkeitsdatum bearbeiten</translation>
    </message>
    <message>
      <source>Change Status</source>
      <translation>Status ändern</translation>
    </message>
    <message>
      <source>Edit Paid Amount</source>
      <translation>Bezahlten Betrag bearbeiten</translation>
    </message>
    <message>
      <source>Edit Payment Date</source>
      <translation>Zahlungsdatum bearbeiten</translation>
    </message>
    <message>
      <source>Mark Dispatched</source>
      <translation>Als geliefert markieren</translation>
    </message>
    <message>
      <source>Edit Delivery Note Number</source>
      <translation>Lieferscheinnummer bearbeiten</translation>
    </message>
    <message>
      <source>Edit Delivery Date</source>
      <translation>Lieferdatum bearbeiten</translation>
    </message>
    <message>
      <source>Edit Conditions</source>
      <translation>Bedingungen bearbeiten</translation>
    </message>
    <message>
      <source>Edit Further Text</source>
      <translation>Weiteren Text bearbeiten</translation>
    </message>
    <message>
      <source>Edit Footer</source>
      <translation>Fußzeile bearbeiten</translation>
    </message>
    <message>
      <source>Edit Notes</source>
      <translation>Notizen bearbeiten</translation>
    </message>
    <message>
      <source>Edit Client Name</source>
      <translation>Kundennamen bearbeiten</translation>
    </message>
    <message>
      <source>Edit Client Title</source>
      <translation>Titel des Kunden bearbeiten</translation>
    </message>
    <message>
      <source>Edit Client Number</source>
      <translation>Kundennummer bearbeiten</translation>
    </message>
    <message>
      <source>Edit VAT ID</source>
      <translation>USt-IdNr. bearbeiten</translation>
    </message>
    <message>
      <source>Edit E-mail Address</source>
      <translation>E-Mail-Adresse bearbeiten</translation>
    </message>
    <message>
      <source>Edit Address</source>
      <translation>Adresse bearbeiten</translation>
    </message>
    <message>
      <source>Charge Shipping</source>
      <translation>Versand berechnen</translation>
    </message>
    <message>
      <source>Edit Shipping Title</source>
      <translation>Versandbezeichnung bearbeiten</translation>
    </message>
    <message>
      <source>Edit Shipping Subtitle</source>
      <translation>Versand-Untertitel bearbeiten</translation>
    </message>
    <message>
      <source>Show Shipping Subtitle</source>
      <translation>Versand-Untertitel anzeigen</translation>
    </message>
    <message>
      <source>Edit Shipping Amount</source>
      <translation>Versandbetrag bearbeiten</translation>
    </message>
    <message>
      <source>Tax Shipping</source>
      <translation>Versand besteuern</translation>
    </message>
    <message>
      <source>Grant Discount</source>
      <translation>Rabatt gewähren</translation>
    </message>
    <message>
      <source>Edit Discount Title</source>
      <translation>Rabattbezeichnung bearbeiten</translation>
    </message>
    <message>
      <source>Edit Discount Subtitle</source>
      <translation>Rabatt-Untertitel bearbeiten</translation>
    </message>
    <message>
      <source>Show Discount Subtitle</source>
      <translation>Rabatt-Untertitel anzeigen</translation>
    </message>
    <message>
      <source>Change Discount Kind</source>
      <translation>Rabattart ändern</translation>
    </message>
    <message>
      <source>Edit Discount Amount</source>
      <translation>Rabattbetrag bearbeiten</translation>
    </message>
    <message>
      <source>Edit Discount Percentage</source>
      <translation>Rabatt in Prozent bearbeiten</translation>
    </message>
    <message>
      <source>Edit E-Invoice Details</source>
      <translation>E-Rechnungsdetails bearbeiten</translation>
    </message>
    <message>
      <source>Client</source>
      <translation>Kunde</translation>
    </message>
    <message>
      <source>Title</source>
      <translation>Titel</translation>
    </message>
    <message>
      <source>Lines</source>
      <translation>Positionen</translation>
    </message>
    <message>
      <source>Shipping</source>
      <translation>Versand</translation>
    </message>
    <message>
      <source>Discount</source>
      <translation>Rabatt</translation>
    </message>
    <message>
      <source>Exempt from VAT</source>
      <translation>Von der Umsatzsteuer befreit</translation>
    </message>
    <message>
      <source>Reverse charge</source>
      <translation>Steuerschuldnerschaft des Leistungsempfängers (Reverse Charge)</translation>
    </message>
    <message>
      <source>Intra-community supply</source>
      <translation>Innergemeinschaftliche Lieferung</translation>
    </message>
    <message>
      <source>Export outside the EU</source>
      <translation>Ausfuhr außerhalb der EU</translation>
    </message>
    <message>
      <source>Not subject to VAT</source>
      <translation>Nicht umsatzsteuerbar</translation>
    </message>
    <message>
      <source>Zero rated</source>
      <translation>Nullsteuersatz</translation>
    </message>
    <message>
      <source>Mark Invoice as Sent</source>
      <translation>Rechnung als versendet markieren</translation>
    </message>
    <message>
      <source>No document is selected.</source>
      <translation>Es ist kein Dokument ausgewählt.</translation>
    </message>
    <message>
      <source>The conformant file asks for %1, while the document shows %2: the rules levy each tax on the amount after the discount at each line's own rate and round each tax subtotal once, which the document's totals do not.</source>
      <translation>Die konforme Datei verlangt %1, während das Dokument %2 ausweist: Nach den Regeln wird jede Steuer auf den Betrag nach Abzug des Rabatts zum jeweiligen Steuersatz der Position erhoben und jede Steuerzwischensumme nur einmal gerundet; die Summen des Dokuments folgen dem nicht.</translation>
    </message>
    <message>
      <source>It breaks a rule the recipient's validator checks:</source>
      <translation>Sie verstößt gegen eine Regel, die der Validator des Empfängers prüft:</translation>
    </message>
    <message>
      <source>It breaks %1 rules the recipient's validator checks, the first:</source>
      <translation>Sie verstößt gegen %1 Regeln, die der Validator des Empfängers prüft. Die erste:</translation>
    </message>
    <message>
      <source>This e-invoice will likely be rejected</source>
      <translation>Diese E-Rechnung wird wahrscheinlich abgelehnt</translation>
    </message>
    <message>
      <source>Export it anyway?</source>
      <translation>Trotzdem exportieren?</translation>
    </message>
    <message>
      <source>Export Anyway</source>
      <translation>Trotzdem exportieren</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Abbrechen</translation>
    </message>
    <message>
      <source>Error!</source>
      <translation>Fehler!</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>OK</translation>
    </message>
    <message>
      <source>The e-invoice could not be saved at %1.</source>
      <translation>Die E-Rechnung konnte nicht unter %1 gespeichert werden.</translation>
    </message>
    <message>
      <source>Save E-Invoice XML File</source>
      <translation>E-Rechnung als XML-Datei speichern</translation>
    </message>
    <message>
      <source>Choose a location to save your E-Invoice XML file.</source>
      <translation>Wählen Sie einen Speicherort für Ihre E-Rechnung im XML-Format.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the discount as a line with a negative price and no tax category.</source>
      <translation>Tamos Standard-E-Rechnung schreibt den Rabatt als Position mit negativem Preis und ohne Steuerkategorie.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line without taxes with no tax category.</source>
      <translation>Tamos Standard-E-Rechnung schreibt eine Position ohne Steuern ohne Steuerkategorie.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line with a negative price as it is; the conformant file writes a negative quantity at a positive price.</source>
      <translation>Tamos Standard-E-Rechnung schreibt eine Position mit negativem Preis unverändert; die konforme Datei schreibt eine negative Menge zu einem positiven Preis.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice leaves the discount line out of the sum of the lines.</source>
      <translation>Tamos Standard-E-Rechnung lässt die Rabattposition bei der Summe der Positionen weg.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice counts the shipping twice in the total without tax when there is a discount.</source>
      <translation>Tamos Standard-E-Rechnung zählt bei einem Rabatt den Versand doppelt in die Summe ohne Steuer.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds the discount back into the total with tax.</source>
      <translation>Tamos Standard-E-Rechnung rechnet den Rabatt wieder in die Summe mit Steuer ein.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the discount off the first tax's taxable amount only, while the tax was levied on the amount before the discount.</source>
      <translation>Tamos Standard-E-Rechnung zieht den Rabatt nur vom steuerpflichtigen Betrag der ersten Steuer ab, obwohl die Steuer auf den Betrag vor Rabatt erhoben wurde.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's tax sums as the document stores them, one subtotal per tax at the document's rate.</source>
      <translation>Tamos Standard-E-Rechnung schreibt die Steuersummen so, wie das Dokument sie speichert: eine Zwischensumme je Steuer zum Steuersatz des Dokuments.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's totals as the document stores and rounds them.</source>
      <translation>Tamos Standard-E-Rechnung schreibt die Summen des Dokuments so, wie das Dokument sie speichert und rundet.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds every tax into the tax total but writes subtotals only for taxes above zero.</source>
      <translation>Tamos Standard-E-Rechnung rechnet jede Steuer in die Steuersumme ein, schreibt Zwischensummen aber nur für Steuern über null.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a document without taxes as one zero-rated subtotal over lines that carry no tax category.</source>
      <translation>Tamos Standard-E-Rechnung schreibt ein Dokument ohne Steuern als eine einzige Zwischensumme zum Nullsteuersatz über Positionen ohne Steuerkategorie.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the document's currency from Preferences → Company (prefsSupplierCurrency) and every amount's currency from the E-Invoice Details (evoiceCurrency); make them the same.</source>
      <translation>Tamos Standard-E-Rechnung nimmt die Währung des Dokuments aus Einstellungen → Unternehmen (prefsSupplierCurrency) und die Währung jedes Betrags aus den E-Rechnungsdetails (evoiceCurrency); gleichen Sie beide an.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes quantities and prices with two decimals, while the document calculates with three.</source>
      <translation>Tamos Standard-E-Rechnung schreibt Mengen und Preise mit zwei Nachkommastellen, während das Dokument mit drei rechnet.</translation>
    </message>
    <message>
      <source>Mail Address</source>
      <translation>E-Mail-Adresse</translation>
    </message>
    <message>
      <source>Legal Name</source>
      <translation>Rechtlicher Name</translation>
    </message>
    <message>
      <source>VAT ID</source>
      <translation>USt-IdNr.</translation>
    </message>
    <message>
      <source>Currency</source>
      <translation>Währung</translation>
    </message>
    <message>
      <source>Tax Scheme</source>
      <translation>Steuerschema</translation>
    </message>
    <message>
      <source>Country Code</source>
      <translation>Ländercode</translation>
    </message>
    <message>
      <source>Street</source>
      <translation>Straße</translation>
    </message>
    <message>
      <source>Postal Code</source>
      <translation>Postleitzahl</translation>
    </message>
    <message>
      <source>City</source>
      <translation>Ort</translation>
    </message>
    <message>
      <source>Contact</source>
      <translation>Kontakt</translation>
    </message>
    <message>
      <source>standard rate</source>
      <translation>Normalsatz</translation>
    </message>
    <message>
      <source>zero rated</source>
      <translation>Nullsteuersatz</translation>
    </message>
    <message>
      <source>exempt from VAT</source>
      <translation>Steuerbefreiung</translation>
    </message>
    <message>
      <source>reverse charge</source>
      <translation>Reverse Charge</translation>
    </message>
    <message>
      <source>intra-community supply</source>
      <translation>Innergemeinschaftliche Lieferung</translation>
    </message>
    <message>
      <source>export outside the EU</source>
      <translation>Ausfuhr außerhalb der EU</translation>
    </message>
    <message>
      <source>not subject to VAT</source>
      <translation>Nicht umsatzsteuerbar</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number.</source>
      <translation>Posten der Kategorie „%1“ benötigen Ihre USt-IdNr. oder Steuernummer.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number and the client's VAT identifier.</source>
      <translation>Posten der Kategorie „%1“ benötigen Ihre USt-IdNr. oder Steuernummer und die USt-IdNr. des Kunden.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier and the client's, both under the tax scheme VAT.</source>
      <translation>Posten der Kategorie „%1“ benötigen Ihre USt-IdNr. und die des Kunden, beide unter dem Steuerschema VAT.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier under the tax scheme VAT.</source>
      <translation>Posten der Kategorie „%1“ benötigen Ihre USt-IdNr. unter dem Steuerschema VAT.</translation>
    </message>
    <message>
      <source>Items %1 may not name your VAT identifier or the client's: choose another exemption category, or use this one only when nothing on the document is taxed.</source>
      <translation>Posten der Kategorie „%1“ dürfen weder Ihre USt-IdNr. noch die des Kunden nennen: Wählen Sie eine andere Befreiungskategorie, oder verwenden Sie diese nur, wenn auf dem Dokument nichts besteuert wird.</translation>
    </message>
    <message>
      <source>Line %1</source>
      <translation>Position %1</translation>
    </message>
    <message>
      <source>The allowance</source>
      <translation>Der Abschlag</translation>
    </message>
    <message>
      <source>The charge</source>
      <translation>Der Zuschlag</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no taxed line.</source>
      <translation>Eine nicht umsatzsteuerbare Rechnung darf keine besteuerte Position enthalten.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no allowance in another tax category.</source>
      <translation>Eine nicht umsatzsteuerbare Rechnung darf keinen Abschlag in einer anderen Steuerkategorie enthalten.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no charge in another tax category.</source>
      <translation>Eine nicht umsatzsteuerbare Rechnung darf keinen Zuschlag in einer anderen Steuerkategorie enthalten.</translation>
    </message>
    <message>
      <source>Your company's legal name is missing.</source>
      <translation>Der rechtliche Name Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's country code is missing.</source>
      <translation>Der Ländercode Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's city is missing.</source>
      <translation>Der Ort Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's postal code is missing.</source>
      <translation>Die Postleitzahl Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's contact person is missing.</source>
      <translation>Der Ansprechpartner Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's phone number is missing.</source>
      <translation>Die Telefonnummer Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>Your company's e-mail address is missing.</source>
      <translation>Die E-Mail-Adresse Ihres Unternehmens fehlt.</translation>
    </message>
    <message>
      <source>The client's legal name is missing.</source>
      <translation>Der rechtliche Name des Kunden fehlt.</translation>
    </message>
    <message>
      <source>The client's country code is missing.</source>
      <translation>Der Ländercode des Kunden fehlt.</translation>
    </message>
    <message>
      <source>The client's city is missing.</source>
      <translation>Der Ort des Kunden fehlt.</translation>
    </message>
    <message>
      <source>The client's postal code is missing.</source>
      <translation>Die Postleitzahl des Kunden fehlt.</translation>
    </message>
    <message>
      <source>The place of delivery has no city.</source>
      <translation>Beim Lieferort fehlt der Ort.</translation>
    </message>
    <message>
      <source>The place of delivery has no postal code.</source>
      <translation>Beim Lieferort fehlt die Postleitzahl.</translation>
    </message>
    <message>
      <source>The total of the allowances (%1) is not their sum (%2).</source>
      <translation>Der Gesamtbetrag der Abschläge (%1) ist nicht ihre Summe (%2).</translation>
    </message>
    <message>
      <source>The total of the charges (%1) is not their sum (%2).</source>
      <translation>Der Gesamtbetrag der Zuschläge (%1) ist nicht ihre Summe (%2).</translation>
    </message>
    <message>
      <source>Tamo files (%1)</source>
      <translation>Tamo-Dateien (%1)</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Drucken</translation>
    </message>
    <message>
      <source>Show the subtitle</source>
      <translation>Untertitel anzeigen</translation>
    </message>
    <message>
      <source>Edit %1 Title</source>
      <translation>%1: Titel bearbeiten</translation>
    </message>
    <message>
      <source>Edit %1 Subtitle</source>
      <translation>%1: Untertitel bearbeiten</translation>
    </message>
    <message>
      <source>Show %1 Subtitle</source>
      <translation>%1: Untertitel anzeigen</translation>
    </message>
    <message>
      <source>Title:</source>
      <translation>Titel:</translation>
    </message>
    <message>
      <source>Subtitle:</source>
      <translation>Untertitel:</translation>
    </message>
    <message>
      <source>Done</source>
      <translation>Fertig</translation>
    </message>
    <message>
      <source>Backup</source>
      <translation>Datensicherung</translation>
    </message>
    <message>
      <source>Restore</source>
      <translation>Wiederherstellen</translation>
    </message>
    <message>
      <source>Hint!</source>
      <translation>Hinweis!</translation>
    </message>
    <message>
      <source>The manual is not installed with this copy of Tamo.</source>
      <translation>Das Handbuch ist in dieser Tamo-Installation nicht enthalten.</translation>
    </message>
    <message>
      <source>No program could open the manual (%1). Please install a web browser.</source>
      <translation>Kein Programm konnte das Handbuch öffnen (%1). Bitte installieren Sie einen Webbrowser.</translation>
    </message>
    <message>
      <source>About Tamo</source>
      <translation>Über Tamo</translation>
    </message>
    <message>
      <source>Invoices, quotes and e-invoices for freelancers and small businesses.</source>
      <translation>Rechnungen, Angebote und E-Rechnungen für Freiberufler und kleine Unternehmen.</translation>
    </message>
    <message>
      <source>&lt;p&gt;Copyright © 2026 The Tamo developers.&lt;/p&gt;&lt;p&gt;Tamo is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or (at your option) any later version. It comes with ABSOLUTELY NO WARRANTY.&lt;/p&gt;</source>
      <translation>&lt;p&gt;Copyright © 2026 Die Tamo-Entwickler.&lt;/p&gt;&lt;p&gt;Tamo ist freie Software: Sie können sie unter den Bedingungen der GNU General Public License, Version 3 oder (nach Ihrer Wahl) jeder späteren Version, weitergeben und verändern. Sie wird OHNE JEGLICHE GEWÄHRLEISTUNG bereitgestellt.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>&amp;Help</source>
      <translation>&amp;Hilfe</translation>
    </message>
    <message>
      <source>Tamo &amp;Manual</source>
      <translation>Tamo-&amp;Handbuch</translation>
    </message>
    <message>
      <source>&amp;About Tamo</source>
      <translation>Ü&amp;ber Tamo</translation>
    </message>
    <message>
      <source>About &amp;Qt</source>
      <translation>Über &amp;Qt</translation>
    </message>
    <message>
      <source>Quote</source>
      <translation>Angebot</translation>
    </message>
    <message>
      <source>Sent</source>
      <translation>Versendet</translation>
    </message>
    <message>
      <source>Overdue</source>
      <translation>Überfällig</translation>
    </message>
    <message>
      <source>Paid</source>
      <translation>Bezahlt</translation>
    </message>
    <message>
      <source>Partially paid</source>
      <translation>Teilweise bezahlt</translation>
    </message>
    <message>
      <source>Created</source>
      <translation>Erstellt</translation>
    </message>
    <message>
      <source>Import Tamo Document…</source>
      <translation>Tamo-Dokument importieren …</translation>
    </message>
    <message>
      <source>Export As Invoices Dump…</source>
      <translation>Als Rechnungsabzug exportieren …</translation>
    </message>
    <message>
      <source>Export Database As XML…</source>
      <translation>Datenbank als XML exportieren …</translation>
    </message>
    <message>
      <source>Export Listed Invoices As XML…</source>
      <translation>Angezeigte Rechnungen als XML exportieren …</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices…</source>
      <translation>Tamo-Rechnungen sichern …</translation>
    </message>
    <message>
      <source>Backup Tamo Items…</source>
      <translation>Tamo-Artikel sichern …</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database…</source>
      <translation>E-Tamo-Datenbank sichern …</translation>
    </message>
    <message>
      <source>Backup Raw Database…</source>
      <translation>Rohdatenbank sichern …</translation>
    </message>
    <message>
      <source>Write Safety Copy Now</source>
      <translation>Sicherheitskopie jetzt anlegen</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices…</source>
      <translation>Tamo-Rechnungen wiederherstellen …</translation>
    </message>
    <message>
      <source>Restore Tamo Items…</source>
      <translation>Tamo-Artikel wiederherstellen …</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database…</source>
      <translation>E-Tamo-Datenbank wiederherstellen …</translation>
    </message>
    <message>
      <source>Restore Raw Database…</source>
      <translation>Rohdatenbank wiederherstellen …</translation>
    </message>
    <message>
      <source>Restore from Safety Copy…</source>
      <translation>Aus Sicherheitskopie wiederherstellen …</translation>
    </message>
    <message>
      <source>Move Data from the Flatpak Edition…</source>
      <translation>Daten aus der Flatpak-Ausgabe übernehmen …</translation>
    </message>
    <message>
      <source>Recover Previous Database…</source>
      <translation>Vorherige Datenbank zurückholen …</translation>
    </message>
    <message>
      <source>the listed documents, newest first</source>
      <translation>die angezeigten Dokumente, die neuesten zuerst</translation>
    </message>
    <message>
      <source>list --changed: what differs from the starting values of the language set up</source>
      <translation>list --changed: was von den Startwerten der eingerichteten Sprache abweicht</translation>
    </message>
    <message>
      <source>the starting values of a language, as the setup assistant's first page applies them</source>
      <translation>die Startwerte einer Sprache, wie sie die erste Seite des Einrichtungsassistenten übernimmt</translation>
    </message>
    <message>
      <source>recalculates every document and prints the sums</source>
      <translation>berechnet alle Dokumente neu und gibt die Summen aus</translation>
    </message>
    <message>
      <source>XML property list, .tamoinvoices</source>
      <translation>XML-Eigenschaftsliste, .tamoinvoices</translation>
    </message>
    <message>
      <source>XML property list, .tamoitems</source>
      <translation>XML-Eigenschaftsliste, .tamoitems</translation>
    </message>
    <message>
      <source>every invoice</source>
      <translation>alle Rechnungen</translation>
    </message>
    <message>
      <source>the listed invoices</source>
      <translation>die angezeigten Rechnungen</translation>
    </message>
    <message>
      <source>the store file, .tamo2db</source>
      <translation>die Datei des Datenbestands, .tamo2db</translation>
    </message>
    <message>
      <source>keyed archive of every invoice, .invdump</source>
      <translation>Schlüsselarchiv aller Rechnungen, .invdump</translation>
    </message>
    <message>
      <source>a document file, .tamo</source>
      <translation>eine Dokumentdatei, .tamo</translation>
    </message>
    <message>
      <source>a raw store copy, .sqlite</source>
      <translation>eine unbearbeitete Kopie des Datenbestands, .sqlite</translation>
    </message>
    <message>
      <source>a complete backup (default: the documents folder), then the store moves to DIR</source>
      <translation>eine vollständige Sicherung (vorgegeben: der Dokumente-Ordner), dann zieht der Datenbestand nach DIR um</translation>
    </message>
    <message>
      <source>without COPY: lists the recovery copies; COPY is a copy's number, file name or path</source>
      <translation>ohne COPY: listet die Wiederherstellungskopien auf; COPY ist die Nummer, der Dateiname oder der Pfad einer Kopie</translation>
    </message>
    <message>
      <source>answers as when the desktop opens a file: a design is offered for import</source>
      <translation>antwortet wie beim Öffnen einer Datei über den Desktop: ein Design wird zum Import angeboten</translation>
    </message>
    <message>
      <source>a quote into an invoice</source>
      <translation>ein Angebot in eine Rechnung</translation>
    </message>
    <message>
      <source>STATUS: 0 created, 1 sent, 3 paid, 4 partially paid (overdue follows from the due date)</source>
      <translation>STATUS: 0 erstellt, 1 versendet, 3 bezahlt, 4 teilweise bezahlt (überfällig ergibt sich aus dem Fälligkeitsdatum)</translation>
    </message>
    <message>
      <source>0 all, 1 open, 2 overdue, 3 paid, 4 quotes, 5-8 recent</source>
      <translation>0 alle, 1 offen, 2 überfällig, 3 bezahlt, 4 Angebote, 5-8 zuletzt</translation>
    </message>
    <message>
      <source>I counts from 0</source>
      <translation>I zählt ab 0</translation>
    </message>
    <message>
      <source>the fields the editor shows: title, subject, date, due, texts, client, shipping, discount, e-invoice buyer; dates as 2026-03-05, percentages as 10</source>
      <translation>die Felder, die der Editor zeigt: Titel, Betreff, Datum, Fälligkeit, Texte, Kunde, Versand, Rabatt, E-Rechnungs-Käufer; Daten als 2026-03-05, Prozente als 10</translation>
    </message>
    <message>
      <source>the document's lines, numbered as edit-line and delete-line take them</source>
      <translation>die Positionen des Dokuments, nummeriert wie edit-line und delete-line sie erwarten</translation>
    </message>
    <message>
      <source>KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes or no)</source>
      <translation>KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes oder no)</translation>
    </message>
    <message>
      <source>XRechnung XML of document N, after the readiness check; --conformant writes the file the EN 16931 rules require (default: setting prefsEvoiceConformantBool)</source>
      <translation>XRechnung-XML von Dokument N nach der Bereitschaftsprüfung; --conformant schreibt die Datei, die die Regeln der EN 16931 verlangen (vorgegeben: Einstellung prefsEvoiceConformantBool)</translation>
    </message>
    <message>
      <source>readiness, then the EN 16931 and XRechnung rules; exit 0 only when nothing fatal remains</source>
      <translation>Bereitschaft, dann die Regeln von EN 16931 und XRechnung; Exit-Code 0 nur, wenn nichts Schwerwiegendes bleibt</translation>
    </message>
    <message>
      <source>every listed document, DIR/NUMBER_N.pdf</source>
      <translation>alle angezeigten Dokumente, DIR/NUMBER_N.pdf</translation>
    </message>
    <message>
      <source>the sales report of the listed invoices; DATE is 2026-03-01 or 2026-03-01T12:00</source>
      <translation>der Umsatzbericht der angezeigten Rechnungen; DATE ist 2026-03-01 oder 2026-03-01T12:00</translation>
    </message>
    <message>
      <source>every listed document, oldest first, as PDF</source>
      <translation>alle angezeigten Dokumente, die ältesten zuerst, als PDF</translation>
    </message>
    <message>
      <source>prints document N on the default printer or NAME; marks an invoice as sent when markInvoiceAsSent is on</source>
      <translation>druckt Dokument N auf dem Standarddrucker oder auf NAME; markiert eine Rechnung als versendet, wenn markInvoiceAsSent eingeschaltet ist</translation>
    </message>
    <message>
      <source>document N as PDF file; marks an invoice as sent as print does</source>
      <translation>Dokument N als PDF-Datei; markiert eine Rechnung wie print als versendet</translation>
    </message>
    <message>
      <source>a new message in the mail client (xdg-email) with the PDF, or with the e-invoice after its checks; marks an invoice as sent as print does</source>
      <translation>eine neue Nachricht im E-Mail-Programm (xdg-email) mit dem PDF oder, nach ihren Prüfungen, mit der E-Rechnung; markiert eine Rechnung wie print als versendet</translation>
    </message>
    <message>
      <source>document file that import-document reads (.tamo), or its XML property list</source>
      <translation>Dokumentdatei, die import-document liest (.tamo), oder ihre XML-Eigenschaftsliste</translation>
    </message>
    <message>
      <source>the invoices of the range (default: every listed one) as kelvaneExport.ldxtamo or .kelvtamo, handed to the desktop; kind 0 every sent invoice, 1 paid, 2 overdue; --items keeps each invoice's lines instead of one summary; prints the file's path</source>
      <translation>die Rechnungen des Zeitraums (vorgegeben: alle angezeigten) als kelvaneExport.ldxtamo oder .kelvtamo, an den Desktop übergeben; kind 0 alle versendeten Rechnungen, 1 bezahlte, 2 überfällige; --items behält die Positionen jeder Rechnung statt einer Zusammenfassung; gibt den Pfad der Datei aus</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to 'Created' first. Then you will also be able to resend the modified invoice.</source>
      <translation>Die ausgewählte Rechnung ist als bereits versendet markiert. Wenn Sie wirklich etwas ändern müssen, setzen Sie ihren Status bitte zuerst auf „Erstellt“ zurück. Dann können Sie die geänderte Rechnung auch erneut versenden.</translation>
    </message>
    <message>
      <source>This feature is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
      <translation>Diese Funktion richtet sich nach den Rechnungen, die im Hauptfenster von Tamo angezeigt werden. So können Sie zum Beispiel nach einem Kunden suchen und das Rechnungsbuch nur für diesen Kunden drucken, oder Ihre Rechnungen vorher filtern und das Rechnungsbuch nur für bezahlte oder überfällige Rechnungen drucken.</translation>
    </message>
    <message>
      <source>“%1” is not a number Tamo can calculate with.</source>
      <translation>„%1“ ist keine Zahl, mit der Tamo rechnen kann.</translation>
    </message>
    <message>
      <source>%1 is too large: Tamo takes amounts of at most %2.</source>
      <translation>%1 ist zu groß: Tamo nimmt Beträge bis höchstens %2.</translation>
    </message>
    <message>
      <source>The line comes to %1, which is too large: Tamo takes amounts of at most %2.</source>
      <translation>Der Posten ergibt %1, das ist zu groß: Tamo nimmt Beträge bis höchstens %2.</translation>
    </message>
    <message>
      <source>“%1” is not a number.</source>
      <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
      <source>“%1” is not a percentage.</source>
      <translation>„%1“ ist keine Prozentangabe.</translation>
    </message>
    <message>
      <source>A rate cannot be negative (“%1”).</source>
      <translation>Ein Satz kann nicht negativ sein („%1“).</translation>
    </message>
    <message>
      <source>A rate is at most 100 % (“%1”).</source>
      <translation>Ein Satz beträgt höchstens 100 % („%1“).</translation>
    </message>
    <message>
      <source>Invoices: %1 (%2 sent)</source>
      <translation>Rechnungen: %1 (%2 versendet)</translation>
    </message>
    <message>
      <source>Quotes: %1</source>
      <translation>Angebote: %1</translation>
    </message>
    <message>
      <source>Total: %1</source>
      <translation>Gesamt: %1</translation>
    </message>
    <message>
      <source>Paid: %1</source>
      <translation>Bezahlt: %1</translation>
    </message>
    <message>
      <source>Due: %1</source>
      <translation>Offen: %1</translation>
    </message>
    <message>
      <source>Status</source>
      <translation>Status</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>Nummer</translation>
    </message>
    <message>
      <source>Date</source>
      <translation>Datum</translation>
    </message>
    <message>
      <source>Due</source>
      <translation>Fällig</translation>
    </message>
    <message>
      <source>Amount</source>
      <translation>Betrag</translation>
    </message>
    <message>
      <source>%1 needs a whole number</source>
      <translation>%1 braucht eine ganze Zahl</translation>
    </message>
    <message>
      <source>Generated %1 documents with %2 lines and %3 clients.</source>
      <translation>%1 Dokumente mit %2 Positionen und %3 Kunden erzeugt.</translation>
    </message>
    <message>
      <source>--store needs a folder</source>
      <translation>--store braucht einen Ordner</translation>
    </message>
    <message>
      <source>usage: tamo %1</source>
      <translation>Aufruf: tamo %1</translation>
    </message>
    <message>
      <source>  Without a command, opens the window (or brings the one open on the store forward).
  Options may stand anywhere; "--" ends them.
  tamo [--store DIR] tamo://…  hands a request to the window, or answers it without one
  tamo [--store DIR] FILE      asks the window to open FILE, as the desktop does
  --store DIR   keep store, settings and data files in DIR
  --yes         answer questions with their default button
  COMMAND --help, or tamo help COMMAND, tells more of one command.
commands:
</source>
      <translation>  Ohne Befehl öffnet Tamo das Fenster (oder holt das auf dem Datenbestand geöffnete nach vorn).
  Optionen dürfen überall stehen; „--“ beendet sie.
  tamo [--store DIR] tamo://…  übergibt eine Anfrage an das Fenster oder beantwortet sie ohne Fenster
  tamo [--store DIR] FILE      bittet das Fenster, FILE zu öffnen, wie es der Desktop tut
  --store DIR   Datenbestand, Einstellungen und Datendateien in DIR ablegen
  --yes         Fragen mit ihrer Standardschaltfläche beantworten
  COMMAND --help oder tamo help COMMAND erklärt einen Befehl genauer.
Befehle:
</translation>
    </message>
    <message>
      <source>unknown command "%1"</source>
      <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
      <source>the store “%1” may only be read: %2 “%3” would change it.</source>
      <translation>der Datenbestand „%1“ darf nur gelesen werden: %2 „%3“ würde ihn ändern.</translation>
    </message>
    <message>
      <source>nothing was exported</source>
      <translation>es wurde nichts exportiert</translation>
    </message>
    <message>
      <source>%1: nothing was written</source>
      <translation>%1: es wurde nichts geschrieben</translation>
    </message>
    <message>
      <source>the export failed</source>
      <translation>der Export ist fehlgeschlagen</translation>
    </message>
    <message>
      <source>Printed %1</source>
      <translation>%1 gedruckt</translation>
    </message>
    <message>
      <source>Wrote %1</source>
      <translation>%1 geschrieben</translation>
    </message>
    <message>
      <source>Handed %1 to the mail client</source>
      <translation>%1 an das E-Mail-Programm übergeben</translation>
    </message>
    <message>
      <source>the e-invoice was not mailed</source>
      <translation>die E-Rechnung wurde nicht verschickt</translation>
    </message>
    <message>
      <source>quote</source>
      <translation>Angebot</translation>
    </message>
    <message>
      <source>invoice</source>
      <translation>Rechnung</translation>
    </message>
    <message>
      <source>Created %1</source>
      <translation>%1 erstellt</translation>
    </message>
    <message>
      <source>Created %1 as a copy of %2</source>
      <translation>%1 als Kopie von %2 erstellt</translation>
    </message>
    <message>
      <source>%1 was not converted</source>
      <translation>%1 wurde nicht umgewandelt</translation>
    </message>
    <message>
      <source>Converted into %1</source>
      <translation>Umgewandelt in %1</translation>
    </message>
    <message>
      <source>Adjust Counter</source>
      <translation>Zähler anpassen</translation>
    </message>
    <message>
      <source>%1 was not deleted</source>
      <translation>%1 wurde nicht gelöscht</translation>
    </message>
    <message>
      <source>Deleted %1</source>
      <translation>%1 gelöscht</translation>
    </message>
    <message>
      <source>the status is 0, 1, 3 or 4 (overdue follows from the due date), not %1</source>
      <translation>der Status ist 0, 1, 3 oder 4 (überfällig ergibt sich aus dem Fälligkeitsdatum), nicht %1</translation>
    </message>
    <message>
      <source>%1 needs a number such as 120.50</source>
      <translation>%1 braucht eine Zahl wie 120.50</translation>
    </message>
    <message>
      <source>Set Status</source>
      <translation>Status setzen</translation>
    </message>
    <message>
      <source>%1: status %2</source>
      <translation>%1: Status %2</translation>
    </message>
    <message>
      <source>%1: delivered %2</source>
      <translation>%1: geliefert am %2</translation>
    </message>
    <message>
      <source>TAG is a number from 0 to 8</source>
      <translation>TAG ist eine Zahl von 0 bis 8</translation>
    </message>
    <message>
      <source>there is no document %1</source>
      <translation>es gibt kein Dokument %1</translation>
    </message>
    <message>
      <source>%1 documents are numbered %2; name one by its uniqueID</source>
      <translation>%1 Dokumente tragen die Nummer %2; nennen Sie eines über seine uniqueID</translation>
    </message>
    <message>
      <source>text</source>
      <translation>ein Text</translation>
    </message>
    <message>
      <source>date such as 2026-03-05</source>
      <translation>ein Datum wie 2026-03-05</translation>
    </message>
    <message>
      <source>amount such as 1234.50</source>
      <translation>ein Betrag wie 1234.50</translation>
    </message>
    <message>
      <source>percentage such as 10</source>
      <translation>ein Prozentsatz wie 10</translation>
    </message>
    <message>
      <source>yes or no</source>
      <translation>yes oder no</translation>
    </message>
    <message>
      <source>choice</source>
      <translation>eine Auswahl</translation>
    </message>
    <message>
      <source>%1: %2 is marked as already sent; set its status back to 0 (created) first</source>
      <translation>%1: %2 ist als bereits versendet markiert; setzen Sie den Status zuerst auf 0 (erstellt) zurück</translation>
    </message>
    <message>
      <source>%1 is not KEY=VALUE</source>
      <translation>%1 hat nicht die Form KEY=VALUE</translation>
    </message>
    <message>
      <source>there is no field %1; the fields are %2</source>
      <translation>es gibt kein Feld %1; die Felder sind %2</translation>
    </message>
    <message>
      <source>%1 is not a %2 for %3</source>
      <translation>%1 ist für %3 nicht gültig, erwartet wird %2</translation>
    </message>
    <message>
      <source>%1: nothing changed</source>
      <translation>%1: nichts geändert</translation>
    </message>
    <message>
      <source>%1: changed %2; its total is now %3</source>
      <translation>%1: %2 geändert; die Summe beträgt jetzt %3</translation>
    </message>
    <message>
      <source>%1 has %2 lines; LINE counts them from 1 as `tamo lines` lists them</source>
      <translation>%1 hat %2 Positionen; LINE zählt sie ab 1, wie `tamo lines` sie auflistet</translation>
    </message>
    <message>
      <source>%1 is yes or no</source>
      <translation>%1 ist yes oder no</translation>
    </message>
    <message>
      <source>there is no line field %1; the fields are title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</source>
      <translation>es gibt kein Positionsfeld %1; die Felder sind title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</translation>
    </message>
    <message>
      <source>Changed "%1" of %2; its total is now %3</source>
      <translation>„%1“ von %2 geändert; die Summe beträgt jetzt %3</translation>
    </message>
    <message>
      <source>delete-line: "%1" was not deleted (questions are answered only with --yes)</source>
      <translation>delete-line: „%1“ wurde nicht gelöscht (Fragen werden nur mit --yes beantwortet)</translation>
    </message>
    <message>
      <source>Deleted "%1" from %2; its total is now %3</source>
      <translation>„%1“ aus %2 gelöscht; die Summe beträgt jetzt %3</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; set its status back to Created to change or export it again</source>
      <translation>%1 ist als bereits versendet markiert; setzen Sie den Status auf „Erstellt“ zurück, um es zu ändern oder erneut zu exportieren</translation>
    </message>
    <message>
      <source>possible</source>
      <translation>möglich</translation>
    </message>
    <message>
      <source>not possible: %1</source>
      <translation>nicht möglich: %1</translation>
    </message>
    <message>
      <source>fatal</source>
      <translation>schwerwiegend</translation>
    </message>
    <message>
      <source>warning</source>
      <translation>Warnung</translation>
    </message>
    <message>
      <source>passes the EN 16931 and XRechnung rules</source>
      <translation>erfüllt die Regeln von EN 16931 und XRechnung</translation>
    </message>
    <message numerus="yes">
      <source>%n fatal finding(s): the recipient's validator will likely reject the file</source>
      <translation>
        <numerusform>%n schwerwiegender Befund: Die Prüfsoftware des Empfängers wird die Datei wahrscheinlich ablehnen</numerusform>
        <numerusform>%n schwerwiegende Befunde: Die Prüfsoftware des Empfängers wird die Datei wahrscheinlich ablehnen</numerusform>
      </translation>
    </message>
    <message>
      <source>Skipped the e-invoice readiness check (--force); the file may lack required values.</source>
      <translation>Bereitschaftsprüfung der E-Rechnung übersprungen (--force); der Datei können Pflichtangaben fehlen.</translation>
    </message>
    <message>
      <source>no e-invoice for %1: %2 (see einvoice-details, settings)</source>
      <translation>keine E-Rechnung für %1: %2 (siehe einvoice-details, settings)</translation>
    </message>
    <message>
      <source>no conformant e-invoice for %1: %2</source>
      <translation>keine konforme E-Rechnung für %1: %2</translation>
    </message>
    <message>
      <source>Warning: this e-invoice will likely be rejected: it breaks rules the recipient's validator checks (see einvoice-check %1).</source>
      <translation>Warnung: Diese E-Rechnung wird wahrscheinlich abgelehnt: Sie verletzt Regeln, die die Prüfsoftware des Empfängers prüft (siehe einvoice-check %1).</translation>
    </message>
    <message>
      <source>%1 cannot become an e-invoice yet</source>
      <translation>%1 kann noch keine E-Rechnung werden</translation>
    </message>
    <message>
      <source>%1 breaks rules of EN 16931 or XRechnung</source>
      <translation>%1 verletzt Regeln von EN 16931 oder XRechnung</translation>
    </message>
    <message>
      <source>KEY is one of %1</source>
      <translation>KEY ist eines von %1</translation>
    </message>
    <message>
      <source>%1: nothing was changed (questions are answered only with --yes)</source>
      <translation>%1: es wurde nichts geändert (Fragen werden nur mit --yes beantwortet)</translation>
    </message>
    <message>
      <source>No safety copy was written at this start.</source>
      <translation>Bei diesem Start wurde keine Sicherheitskopie angelegt.</translation>
    </message>
    <message>
      <source>Backed up the database to %1.
Moved the store to %2; Tamo opens it there from now on.</source>
      <translation>Datenbank in %1 gesichert.
Datenbestand nach %2 verschoben; Tamo öffnet ihn ab jetzt dort.</translation>
    </message>
    <message>
      <source>The store is already in %1.</source>
      <translation>Der Datenbestand liegt bereits in %1.</translation>
    </message>
    <message>
      <source>move-store: the store stays in %1</source>
      <translation>move-store: der Datenbestand bleibt in %1</translation>
    </message>
    <message>
      <source>--price and --quantity need numbers such as 12.50</source>
      <translation>--price und --quantity brauchen Zahlen wie 12.50</translation>
    </message>
    <message>
      <source>add-item: %1 was left as it is</source>
      <translation>add-item: %1 bleibt unverändert</translation>
    </message>
    <message>
      <source>Added "%1" (%2 x %3) to %4; its total is now %5</source>
      <translation>„%1“ (%2 x %3) zu %4 hinzugefügt; die Summe beträgt jetzt %5</translation>
    </message>
    <message>
      <source>set-client: %1 was left as it is</source>
      <translation>set-client: %1 bleibt unverändert</translation>
    </message>
    <message>
      <source>there is no remembered client %1</source>
      <translation>es gibt keinen gespeicherten Kunden %1</translation>
    </message>
    <message>
      <source>cannot read %1</source>
      <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
      <source>%1 has %2 contacts; --index counts them from 0</source>
      <translation>%1 enthält %2 Kontakte; --index zählt sie ab 0</translation>
    </message>
    <message>
      <source>The client of %1 is now %2</source>
      <translation>Der Kunde von %1 ist jetzt %2</translation>
    </message>
    <message>
      <source>there is no design %1 (see designs list)</source>
      <translation>es gibt kein Design %1 (siehe designs list)</translation>
    </message>
    <message>
      <source>cannot create the folder %1</source>
      <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
      <source>not written: %1: %2</source>
      <translation>nicht geschrieben: %1: %2</translation>
    </message>
    <message>
      <source>%1 of %2 documents were not written</source>
      <translation>%1 von %2 Dokumenten wurden nicht geschrieben</translation>
    </message>
    <message>
      <source>(default)</source>
      <translation>(Standard)</translation>
    </message>
    <message>
      <source>nothing deleted (answer with --yes)</source>
      <translation>nichts gelöscht (mit --yes antworten)</translation>
    </message>
    <message>
      <source>%1 %2 (%3 lines) %4</source>
      <translation>%1 %2 (%3 Positionen) %4</translation>
    </message>
    <message>
      <source>there is no template %1 (see templates list)</source>
      <translation>es gibt keine Vorlage %1 (siehe templates list)</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; the template was not applied</source>
      <translation>%1 ist als bereits versendet markiert; die Vorlage wurde nicht angewendet</translation>
    </message>
    <message>
      <source>%1 needs a date such as 2026-03-01</source>
      <translation>%1 benötigt ein Datum wie 2026-03-01</translation>
    </message>
    <message>
      <source>Wrote %1 (1 page)</source>
      <translation>%1 geschrieben (1 Seite)</translation>
    </message>
    <message>
      <source>Wrote %1 (%2 pages)</source>
      <translation>%1 geschrieben (%2 Seiten)</translation>
    </message>
    <message>
      <source>The number of sample documents cannot be negative.</source>
      <translation>Die Zahl der Beispieldokumente kann nicht negativ sein.</translation>
    </message>
    <message>
      <source>The number of lines per document cannot be negative.</source>
      <translation>Die Zahl der Positionen je Dokument kann nicht negativ sein.</translation>
    </message>
    <message>
      <source>The number of sample clients cannot be negative.</source>
      <translation>Die Zahl der Beispielkunden kann nicht negativ sein.</translation>
    </message>
    <message>
      <source>The sample cannot be dated: the clock gives no time.</source>
      <translation>Das Beispiel kann nicht datiert werden: Die Uhr liefert keine Zeit.</translation>
    </message>
    <message>
      <source>--file gives the image of prefsLogo</source>
      <translation>--file gibt das Bild von prefsLogo an</translation>
    </message>
    <message>
      <source>prefsLogo holds an image: set it with --file IMAGE, or remove it with an empty value</source>
      <translation>prefsLogo enthält ein Bild: Setzen Sie es mit --file IMAGE oder entfernen Sie es mit einem leeren Wert</translation>
    </message>
    <message>
      <source>%1 is not a valid value for %2</source>
      <translation>%1 ist kein gültiger Wert für %2</translation>
    </message>
    <message>
      <source>there is no setting named %1</source>
      <translation>es gibt keine Einstellung namens %1</translation>
    </message>
    <message>
      <source>there are no starting values for "%1"</source>
      <translation>es gibt keine Startwerte für „%1“</translation>
    </message>
    <message>
      <source>setup: nothing was changed (questions are answered only with --yes)</source>
      <translation>setup: es wurde nichts geändert (Fragen werden nur mit --yes beantwortet)</translation>
    </message>
    <message>
      <source>setup: no starting values were applied</source>
      <translation>setup: es wurden keine Startwerte übernommen</translation>
    </message>
    <message>
      <source>Applied %1 starting values (%2).</source>
      <translation>%1 Startwerte übernommen (%2).</translation>
    </message>
    <message>
      <source>No mail client could take the message.</source>
      <translation>Kein E-Mail-Programm konnte die Nachricht übernehmen.</translation>
    </message>
    <message>
      <source>The conformant file cannot be written; the standard file still can.</source>
      <translation>Die konforme Datei kann nicht geschrieben werden, die Standarddatei dagegen schon.</translation>
    </message>
    <message>
      <source>E-Invoice sheet</source>
      <translation>E-Rechnungsdialog</translation>
    </message>
    <message>
      <source>Preferences → Company</source>
      <translation>Einstellungen → Unternehmen</translation>
    </message>
    <message>
      <source>Preferences → Taxes</source>
      <translation>Einstellungen → Steuern</translation>
    </message>
    <message>
      <source>document: %1</source>
      <translation>Dokument: %1</translation>
    </message>
    <message>
      <source>line %1: %2</source>
      <translation>Position %1: %2</translation>
    </message>
    <message>
      <source>E-Invoice Details: %1</source>
      <translation>E-Rechnungsdetails: %1</translation>
    </message>
    <message>
      <source>Tamo writes one tax category for each tax of a line, and an e-invoice line may carry only one. Split the line into one line per tax; the conformant file cannot write it either.</source>
      <translation>Tamo schreibt für jede Steuer einer Position eine Steuerkategorie, eine Position in der E-Rechnung darf aber nur eine tragen. Teilen Sie die Position in eine Position je Steuer auf; auch die konforme Datei kann sie so nicht schreiben.</translation>
    </message>
    <message>
      <source>The document's structure, not a missing entry, is the cause: the conformant file writes it as the rules require.</source>
      <translation>Die Ursache ist der Aufbau des Dokuments, nicht eine fehlende Angabe: Die konforme Datei schreibt es so, wie die Regeln es verlangen.</translation>
    </message>
    <message>
      <source>E-Invoice Requirements</source>
      <translation>Anforderungen an E-Rechnungen</translation>
    </message>
    <message>
      <source>In order to be able to export or send a valid E-Invoice XML file, the following criteria must be met:

• There must be at least one item or invoice amount booked.
• Items can not have a negative value.
• Possible discounts must be calculated before taxes.

• The following minimum customer information is required:
    • Mail Address
    • Legal Name
    • VAT ID
    • Tax Scheme
    • Mail Address
    • Country Code
    • Currency
    • Street, Postal Code, City

• The following minimum supplier information is required:
    • Legal Name
    • VAT ID
    • Tax Scheme
    • IBAN
    • Contact
    • Phone
    • Mail Address
    • Country Code
    • Currency
    • Street, Postal Code, City

The required information can be edited individually for each invoice at any time in the 'E-Invoice Details' dialog.</source>
      <translation>Um eine gültige E-Rechnung als XML-Datei exportieren oder senden zu können, müssen folgende Kriterien erfüllt sein:

• Es muss mindestens eine Position oder ein Rechnungsbetrag gebucht sein.
• Positionen dürfen keinen negativen Wert haben.
• Etwaige Rabatte müssen vor Steuern berechnet werden.

• Folgende Mindestangaben zum Kunden sind erforderlich:
    • E-Mail-Adresse
    • Rechtlicher Name
    • USt-IdNr.
    • Steuerschema
    • E-Mail-Adresse
    • Ländercode
    • Währung
    • Straße, Postleitzahl, Ort

• Folgende Mindestangaben zum Rechnungssteller sind erforderlich:
    • Rechtlicher Name
    • USt-IdNr.
    • Steuerschema
    • IBAN
    • Kontakt
    • Telefon
    • E-Mail-Adresse
    • Ländercode
    • Währung
    • Straße, Postleitzahl, Ort

Die erforderlichen Angaben können für jede Rechnung jederzeit einzeln im Dialog „E-Rechnungsdetails“ bearbeitet werden.</translation>
    </message>
    <message>
      <source>Tamo and E-Invoicing</source>
      <translation>Tamo und E-Rechnungen</translation>
    </message>
    <message>
      <source>Germany is moving business-to-business invoicing to e-invoices: structured files such as XRechnung that software can read without retyping. A PDF sent by e-mail is no longer an e-invoice.

Receiving: since 1 January 2025 every business in Germany must be able to accept e-invoices from other businesses.

Issuing: until the end of 2026 paper and PDF invoices remain allowed. Businesses whose turnover in the previous year was no more than 800,000 euros may keep sending them until the end of 2027. From 1 January 2028 every business must issue e-invoices to other businesses.

Tamo writes XRechnung 3.0 files. Enter your supplier details in the preferences and the customer's details in the 'E-Invoice Details' dialog of each invoice, then choose 'Export E-Invoice…'. To read the e-invoices you receive, use an e-invoice viewer: the button below shows where to find one.</source>
      <translation>Deutschland stellt die Rechnungsstellung zwischen Unternehmen auf E-Rechnungen um: strukturierte Dateien wie XRechnung, die Software ohne Abtippen lesen kann. Ein per E-Mail versandtes PDF ist keine E-Rechnung mehr.

Empfang: Seit dem 1. Januar 2025 muss jedes Unternehmen in Deutschland E-Rechnungen von anderen Unternehmen annehmen können.

Ausstellung: Bis Ende 2026 bleiben Papier- und PDF-Rechnungen erlaubt. Unternehmen, deren Umsatz im Vorjahr nicht mehr als 800.000 Euro betrug, dürfen sie noch bis Ende 2027 versenden. Ab dem 1. Januar 2028 muss jedes Unternehmen anderen Unternehmen E-Rechnungen ausstellen.

Tamo schreibt Dateien im Format XRechnung 3.0. Geben Sie Ihre Angaben als Rechnungssteller in den Einstellungen und die Angaben des Kunden im Dialog „E-Rechnungsdetails“ der jeweiligen Rechnung ein, und wählen Sie dann „E-Rechnung exportieren …“. Um empfangene E-Rechnungen zu lesen, verwenden Sie ein Anzeigeprogramm für E-Rechnungen: Die Schaltfläche unten zeigt, wo Sie eines finden.</translation>
    </message>
    <message>
      <source>About E-Invoicing</source>
      <translation>Über E-Rechnungen</translation>
    </message>
    <message>
      <source>Find an E-Invoice Viewer</source>
      <translation>Anzeigeprogramm für E-Rechnungen finden</translation>
    </message>
    <message>
      <source>The e-invoice needs a date in %1, and the UBL schema rejects an empty one.</source>
      <translation>Die E-Rechnung benötigt ein Datum in %1, und das UBL-Schema lehnt ein leeres ab.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a date the UBL schema accepts.</source>
      <translation>„%1“ in %2 ist kein Datum, das das UBL-Schema akzeptiert.</translation>
    </message>
    <message>
      <source>%1 is not a number: a fixed discount on a document whose lines add up to 0 makes the totals not-a-number. Remove the discount or add lines.</source>
      <translation>%1 ist keine Zahl: Ein fester Rabatt auf ein Dokument, dessen Positionen zusammen 0 ergeben, macht die Summen ungültig (keine Zahl). Entfernen Sie den Rabatt oder fügen Sie Positionen hinzu.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a number the UBL schema accepts.</source>
      <translation>„%1“ in %2 ist keine Zahl, die das UBL-Schema akzeptiert.</translation>
    </message>
    <message>
      <source>The e-invoice would contain an empty element (%1); empty elements are not allowed. Fill in the value it comes from.</source>
      <translation>Die E-Rechnung würde ein leeres Element enthalten (%1); leere Elemente sind nicht erlaubt. Füllen Sie den Wert aus, aus dem es stammt.</translation>
    </message>
    <message>
      <source>The document has no number.</source>
      <translation>Das Dokument hat keine Nummer.</translation>
    </message>
    <message>
      <source>The document has no date.</source>
      <translation>Das Dokument hat kein Datum.</translation>
    </message>
    <message>
      <source>The e-invoice names no currency.</source>
      <translation>Die E-Rechnung nennt keine Währung.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 4217 currency code such as EUR.</source>
      <translation>„%1“ ist kein ISO-4217-Währungscode wie EUR.</translation>
    </message>
    <message>
      <source>The e-invoice has no line.</source>
      <translation>Die E-Rechnung hat keine Position.</translation>
    </message>
    <message>
      <source>The e-invoice needs a buyer reference, which Tamo takes from the document's title: enter one (for a public client, the routing ID it gave you, its Leitweg-ID).</source>
      <translation>Die E-Rechnung benötigt eine Käuferreferenz, die Tamo aus dem Titel des Dokuments übernimmt: Geben Sie eine ein (bei öffentlichen Auftraggebern die Ihnen mitgeteilte Leitweg-ID).</translation>
    </message>
    <message>
      <source>The amounts carry the currency “%1”, which is not an ISO 4217 code such as EUR.</source>
      <translation>Die Beträge tragen die Währung „%1“, die kein ISO-4217-Code wie EUR ist.</translation>
    </message>
    <message>
      <source>Your phone number should contain at least three digits.</source>
      <translation>Ihre Telefonnummer sollte mindestens drei Ziffern enthalten.</translation>
    </message>
    <message>
      <source>Your e-mail address “%1” should be one address such as name@example.com.</source>
      <translation>Ihre E-Mail-Adresse „%1“ sollte eine einzelne Adresse wie name@example.com sein.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 3166 country code such as DE.</source>
      <translation>„%1“ ist kein ISO-3166-Ländercode wie DE.</translation>
    </message>
    <message>
      <source>The VAT identifier “%1” does not start with a country code such as DE.</source>
      <translation>Die USt-IdNr. „%1“ beginnt nicht mit einem Ländercode wie DE.</translation>
    </message>
    <message>
      <source>The place of delivery has no country code.</source>
      <translation>Beim Lieferort fehlt der Ländercode.</translation>
    </message>
    <message>
      <source>Taxed and tax-exempt items need your VAT identifier or tax number.</source>
      <translation>Besteuerte und steuerbefreite Posten benötigen Ihre USt-IdNr. oder Steuernummer.</translation>
    </message>
    <message>
      <source>Line %1 has no description.</source>
      <translation>Position %1 hat keine Beschreibung.</translation>
    </message>
    <message>
      <source>The price of line %1 is negative, and an e-invoice price may not be.</source>
      <translation>Der Preis von Position %1 ist negativ, was in einer E-Rechnung nicht zulässig ist.</translation>
    </message>
    <message>
      <source>Line %1 has no tax category.</source>
      <translation>Position %1 hat keine Steuerkategorie.</translation>
    </message>
    <message>
      <source>The tax categories name the tax scheme “%1”, and the rules count only those of the scheme VAT: enter VAT as the tax scheme.</source>
      <translation>Die Steuerkategorien nennen das Steuerschema „%1“, die Regeln berücksichtigen aber nur die des Schemas VAT: Geben Sie VAT als Steuerschema ein.</translation>
    </message>
    <message>
      <source>Line %1 must have exactly one tax category; it has %2.</source>
      <translation>Position %1 muss genau eine Steuerkategorie haben; sie hat %2.</translation>
    </message>
    <message>
      <source>The amount of line %1 (%2) is not its quantity times its price (%3 × %4 = %5).</source>
      <translation>Der Betrag von Position %1 (%2) ist nicht Menge mal Preis (%3 × %4 = %5).</translation>
    </message>
    <message>
      <source>The tax total (%1) is not the sum of the tax subtotals (%2).</source>
      <translation>Die Steuersumme (%1) ist nicht die Summe der Steuerzwischensummen (%2).</translation>
    </message>
    <message>
      <source>The tax at %1 % (%2) is not the taxable amount %3 times the rate, rounded to the cent (%4).</source>
      <translation>Die Steuer zu %1 % (%2) ist nicht der steuerpflichtige Betrag %3 mal Steuersatz, auf den Cent gerundet (%4).</translation>
    </message>
    <message>
      <source>The sum of the lines (%1) is not what the line amounts add up to (%2).</source>
      <translation>Die Summe der Positionen (%1) entspricht nicht dem, was die Positionsbeträge ergeben (%2).</translation>
    </message>
    <message>
      <source>none</source>
      <translation>keine</translation>
    </message>
    <message>
      <source>The total without tax (%1) is not the sum of the lines less the allowances plus the charges (%2).</source>
      <translation>Die Summe ohne Steuer (%1) ist nicht die Summe der Positionen abzüglich der Abschläge zuzüglich der Zuschläge (%2).</translation>
    </message>
    <message>
      <source>The tax total is not given in the document's currency %1, so the total with tax cannot add up.</source>
      <translation>Die Steuersumme ist nicht in der Dokumentwährung %1 angegeben, daher kann die Summe mit Steuer nicht aufgehen.</translation>
    </message>
    <message>
      <source>The total with tax (%1) is not the total without tax plus the tax (%2).</source>
      <translation>Die Summe mit Steuer (%1) ist nicht die Summe ohne Steuer plus Steuer (%2).</translation>
    </message>
    <message>
      <source>The amount due (%1) is not the total with tax less what was paid (%2).</source>
      <translation>Der fällige Betrag (%1) ist nicht die Summe mit Steuer abzüglich des bereits Bezahlten (%2).</translation>
    </message>
    <message>
      <source>The file is not a readable archive.</source>
      <translation>Die Datei ist kein lesbares Archiv.</translation>
    </message>
    <message>
      <source>The file “%1” could not be found.</source>
      <translation>Die Datei „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
      <source>The file “%1” is too large to be a Tamo file (%2 MB).</source>
      <translation>Die Datei „%1“ ist zu groß für eine Tamo-Datei (%2 MB).</translation>
    </message>
    <message>
      <source>Nothing was read from it.</source>
      <translation>Es wurde nichts daraus gelesen.</translation>
    </message>
    <message>
      <source>The file “%1” could not be read.</source>
      <translation>Die Datei „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
      <source>The data could not be written as a property list.</source>
      <translation>Die Daten konnten nicht als Eigenschaftsliste geschrieben werden.</translation>
    </message>
    <message>
      <source>The file is empty or not a property list.</source>
      <translation>Die Datei ist leer oder keine Eigenschaftsliste.</translation>
    </message>
    <message>
      <source>The file refers to itself in a loop.</source>
      <translation>Die Datei verweist in einer Schleife auf sich selbst.</translation>
    </message>
    <message>
      <source>The file nests deeper than any Tamo file does.</source>
      <translation>Die Datei ist tiefer verschachtelt als jede Tamo-Datei.</translation>
    </message>
    <message>
      <source>“%1” holds “%2”, which is not a date.</source>
      <translation>„%1“ enthält „%2“, was kein Datum ist.</translation>
    </message>
    <message>
      <source>Record %1: %2</source>
      <translation>Datensatz %1: %2</translation>
    </message>
    <message>
      <source>The file is not a property list, or it is damaged.</source>
      <translation>Die Datei ist keine Eigenschaftsliste oder sie ist beschädigt.</translation>
    </message>
    <message>
      <source>a yes/no value</source>
      <translation>ein Ja/Nein-Wert</translation>
    </message>
    <message>
      <source>a number</source>
      <translation>eine Zahl</translation>
    </message>
    <message>
      <source>a list</source>
      <translation>eine Liste</translation>
    </message>
    <message>
      <source>a record</source>
      <translation>ein Datensatz</translation>
    </message>
    <message>
      <source>a date</source>
      <translation>ein Datum</translation>
    </message>
    <message>
      <source>binary data</source>
      <translation>Binärdaten</translation>
    </message>
    <message>
      <source>an object reference</source>
      <translation>ein Objektverweis</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>eine ganze Zahl</translation>
    </message>
    <message>
      <source>“%1” holds %2 where %3 belongs</source>
      <translation>„%1“ enthält %2, wo %3 hingehört</translation>
    </message>
    <message>
      <source>“%1” holds %2, which is too large for a whole number</source>
      <translation>„%1“ enthält %2, was für eine ganze Zahl zu groß ist</translation>
    </message>
    <message>
      <source>“status” holds %1, which is no status (0 to 4)</source>
      <translation>„status“ enthält %1, was kein Status ist (0 bis 4)</translation>
    </message>
    <message>
      <source>Record %1</source>
      <translation>Datensatz %1</translation>
    </message>
    <message>
      <source>Record %1 (%2)</source>
      <translation>Datensatz %1 (%2)</translation>
    </message>
    <message>
      <source>a record names no kind</source>
      <translation>ein Datensatz nennt keine Art</translation>
    </message>
    <message>
      <source>there are no records of kind “%1”</source>
      <translation>es gibt keine Datensätze der Art „%1“</translation>
    </message>
    <message>
      <source>The %1 record %2 holds %3 in “%4”, which a property list cannot hold.</source>
      <translation>Der Datensatz %2 (%1) enthält %3 in „%4“, was eine Eigenschaftsliste nicht aufnehmen kann.</translation>
    </message>
    <message>
      <source>%1 stands where a record belongs</source>
      <translation>%1 steht, wo ein Datensatz hingehört</translation>
    </message>
    <message>
      <source>It holds %1 where a list of records belongs.</source>
      <translation>Sie enthält %1, wo eine Liste von Datensätzen hingehört.</translation>
    </message>
    <message>
      <source>The file “%1” could not be put in place.</source>
      <translation>Die Datei „%1“ konnte nicht an ihren Platz gelegt werden.</translation>
    </message>
    <message>
      <source>The file “%1” could not be removed.</source>
      <translation>Die Datei „%1“ konnte nicht entfernt werden.</translation>
    </message>
    <message>
      <source>The copy “%1” could not be written.</source>
      <translation>Die Kopie „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
      <source>It was found damaged after writing: %1</source>
      <translation>Sie war nach dem Schreiben beschädigt: %1</translation>
    </message>
    <message>
      <source>The file “%1” is not a Tamo database that Tamo can use.</source>
      <translation>Die Datei „%1“ ist keine Tamo-Datenbank, die Tamo verwenden kann.</translation>
    </message>
    <message>
      <source>It is damaged: %1</source>
      <translation>Sie ist beschädigt: %1</translation>
    </message>
    <message>
      <source>It records no Tamo layout.</source>
      <translation>Sie verzeichnet keinen Tamo-Aufbau.</translation>
    </message>
    <message>
      <source>The store “%1” is damaged.</source>
      <translation>Der Datenbestand „%1“ ist beschädigt.</translation>
    </message>
    <message>
      <source>SQLite reports: %1 Tamo has changed nothing; a recovery copy or a backup can take its place (File › Recover Previous Database…, or tamo recover).</source>
      <translation>SQLite meldet: %1 Tamo hat nichts verändert; eine Wiederherstellungskopie oder eine Sicherung kann an seine Stelle treten (Datei › Vorherige Datenbank zurückholen … oder tamo recover).</translation>
    </message>
    <message>
      <source>The store “%1” was written by a newer version of Tamo.</source>
      <translation>Der Datenbestand „%1“ wurde von einer neueren Version von Tamo geschrieben.</translation>
    </message>
    <message>
      <source>Please update Tamo to open it.</source>
      <translation>Bitte aktualisieren Sie Tamo, um ihn zu öffnen.</translation>
    </message>
    <message>
      <source>Expected a folder to store application data, found a file (%1).</source>
      <translation>Für die Daten der Anwendung wurde ein Ordner erwartet, aber eine Datei gefunden (%1).</translation>
    </message>
    <message>
      <source>The folder %1 could not be created.</source>
      <translation>Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
      <source>Please check that you may write to its parent folder.</source>
      <translation>Bitte prüfen Sie, ob Sie in den übergeordneten Ordner schreiben dürfen.</translation>
    </message>
    <message>
      <source>The file %1 could not be replaced.</source>
      <translation>Die Datei %1 konnte nicht ersetzt werden.</translation>
    </message>
    <message>
      <source>The disk is full.</source>
      <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
      <source>Permission denied.</source>
      <translation>Zugriff verweigert.</translation>
    </message>
    <message>
      <source>The file system is read-only.</source>
      <translation>Das Dateisystem ist schreibgeschützt.</translation>
    </message>
    <message>
      <source>The folder does not exist.</source>
      <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
      <source>A folder stands in its place.</source>
      <translation>An seiner Stelle steht ein Ordner.</translation>
    </message>
    <message>
      <source>Part of its path is not a folder.</source>
      <translation>Ein Teil seines Pfads ist kein Ordner.</translation>
    </message>
    <message>
      <source>The disk reported an error.</source>
      <translation>Der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
      <source>The system gave no reason.</source>
      <translation>Das System hat keinen Grund genannt.</translation>
    </message>
    <message>
      <source>The file “%1” could not be written.</source>
      <translation>Die Datei „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
      <source>The file is not a Tamo design.</source>
      <translation>Die Datei ist kein Tamo-Design.</translation>
    </message>
    <message>
      <source>It holds no dictionary.</source>
      <translation>Sie enthält kein Verzeichnis.</translation>
    </message>
    <message>
      <source>It holds no “designDic” dictionary.</source>
      <translation>Sie enthält kein Verzeichnis „designDic“.</translation>
    </message>
    <message>
      <source>The built-in design “%1” is missing.</source>
      <translation>Das mitgelieferte Design „%1“ fehlt.</translation>
    </message>
    <message>
      <source>“%1” cannot be used as the logo.</source>
      <translation>„%1“ kann nicht als Logo verwendet werden.</translation>
    </message>
    <message>
      <source>The file is larger than 20 MB.</source>
      <translation>Die Datei ist größer als 20 MB.</translation>
    </message>
    <message>
      <source>The file cannot be opened.</source>
      <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
      <source>It is no image Tamo can read (PNG, JPEG, GIF, BMP, SVG or WebP).</source>
      <translation>Es ist kein Bild, das Tamo lesen kann (PNG, JPEG, GIF, BMP, SVG oder WebP).</translation>
    </message>
    <message>
      <source>The image could not be converted to PNG.</source>
      <translation>Das Bild konnte nicht in PNG umgewandelt werden.</translation>
    </message>
    <message>
      <source>%1 image, %2 × %3 pixels, %4</source>
      <translation>%1-Bild, %2 × %3 Pixel, %4</translation>
    </message>
    <message>
      <source>Invoices</source>
      <translation>Rechnungen</translation>
    </message>
    <message>
      <source>Average</source>
      <translation>Durchschnitt</translation>
    </message>
    <message>
      <source>Total</source>
      <translation>Gesamt</translation>
    </message>
    <message>
      <source>TOTAL</source>
      <translation>GESAMT</translation>
    </message>
    <message>
      <source>DUE</source>
      <translation>OFFEN</translation>
    </message>
    <message>
      <source>PAID</source>
      <translation>BEZAHLT</translation>
    </message>
    <message>
      <source>AVERAGE</source>
      <translation>DURCHSCHNITT</translation>
    </message>
    <message>
      <source>The starting values “%1” could not be read.</source>
      <translation>Die Startwerte „%1“ konnten nicht gelesen werden.</translation>
    </message>
    <message>
      <source>Tamo has no setting “%1”.</source>
      <translation>Tamo hat keine Einstellung „%1“.</translation>
    </message>
    <message>
      <source>The value of “%1” is %2, which that setting cannot hold.</source>
      <translation>Der Wert von „%1“ ist %2, was diese Einstellung nicht aufnehmen kann.</translation>
    </message>
    <message>
      <source>The account book could not be drawn.</source>
      <translation>Das Rechnungsbuch konnte nicht erstellt werden.</translation>
    </message>
    <message>
      <source>Send To</source>
      <translation>Senden an</translation>
    </message>
    <message>
      <source>Ledrix…</source>
      <translation>Ledrix …</translation>
    </message>
    <message>
      <source>Kelvane…</source>
      <translation>Kelvane …</translation>
    </message>
    <message>
      <source>Importing from Within Ledrix…</source>
      <translation>Import direkt aus Ledrix …</translation>
    </message>
    <message>
      <source>Preparing invoices for Ledrix</source>
      <translation>Rechnungen für Ledrix werden vorbereitet</translation>
    </message>
    <message>
      <source>%1 of %2 PDFs written</source>
      <translation>%1 von %2 PDFs geschrieben</translation>
    </message>
    <message>
      <source>--kind is 0 (every sent invoice), 1 (paid) or 2 (overdue)</source>
      <translation>--kind ist 0 (jede versendete Rechnung), 1 (bezahlte) oder 2 (überfällige)</translation>
    </message>
    <message>
      <source>Handed “%1” to %2.</source>
      <translation>„%1“ an %2 übergeben.</translation>
    </message>
    <message>
      <source>Writing %1 PDFs for Ledrix…</source>
      <translation>%1 PDFs für Ledrix werden geschrieben …</translation>
    </message>
    <message>
      <source>not written: </source>
      <translation>nicht geschrieben: </translation>
    </message>
    <message>
      <source>Wrote %1 and called Ledrix back.</source>
      <translation>%1 geschrieben und Ledrix zurückgerufen.</translation>
    </message>
    <message>
      <source>Tamo can put a copy of your data in place of the damaged store. The damaged file is kept as a recovery copy.</source>
      <translation>Tamo kann eine Kopie Ihrer Daten an die Stelle des beschädigten Datenbestands setzen. Die beschädigte Datei wird als Wiederherstellungskopie aufbewahrt.</translation>
    </message>
    <message>
      <source>The newest recovery copy is “%1”.</source>
      <translation>Die neueste Wiederherstellungskopie ist „%1“.</translation>
    </message>
    <message>
      <source>Not Now</source>
      <translation>Nicht jetzt</translation>
    </message>
    <message>
      <source>Recover Your Data</source>
      <translation>Ihre Daten wiederherstellen</translation>
    </message>
    <message>
      <source>Failed to initialize the store</source>
      <translation>Der Datenbestand konnte nicht eingerichtet werden</translation>
    </message>
    <message>
      <source>There was an error building up the data file.</source>
      <translation>Beim Aufbau der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
      <source>It is in use by %1; this is a snapshot of it.</source>
      <translation>Er wird von %1 verwendet; dies ist eine Momentaufnahme davon.</translation>
    </message>
    <message>
      <source>another Tamo</source>
      <translation>einem anderen Tamo</translation>
    </message>
    <message>
      <source>Tamo cannot make its store in the folder “%1”.</source>
      <translation>Tamo kann seinen Datenbestand nicht im Ordner „%1“ anlegen.</translation>
    </message>
    <message>
      <source>Its folder “%1” may not be written. %2</source>
      <translation>Sein Ordner „%1“ darf nicht beschrieben werden. %2</translation>
    </message>
    <message>
      <source>The store file may only be read.</source>
      <translation>Die Datei des Datenbestands darf nur gelesen werden.</translation>
    </message>
    <message>
      <source>The store “%1” is open for reading only.</source>
      <translation>Der Datenbestand „%1“ ist nur zum Lesen geöffnet.</translation>
    </message>
    <message>
      <source>Your change was not kept.</source>
      <translation>Ihre Änderung wurde nicht übernommen.</translation>
    </message>
    <message>
      <source>Quit anyway</source>
      <translation>Trotzdem beenden</translation>
    </message>
    <message>
      <source>Could not save changes while quitting. Quit anyway?</source>
      <translation>Die Änderungen konnten beim Beenden nicht gespeichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
      <source>Quitting now will lose any changes you have made since the last successful save</source>
      <translation>Wenn Sie jetzt beenden, gehen alle Änderungen seit dem letzten erfolgreichen Speichern verloren</translation>
    </message>
    <message>
      <source>The data nests too deeply to be archived.</source>
      <translation>Die Daten sind zu tief verschachtelt, um archiviert zu werden.</translation>
    </message>
    <message>
      <source>The data holds a value that cannot be archived.</source>
      <translation>Die Daten enthalten einen Wert, der nicht archiviert werden kann.</translation>
    </message>
    <message>
      <source>Only %1 of its %2 bytes reached the disk.</source>
      <translation>Nur %1 seiner %2 Bytes haben den Datenträger erreicht.</translation>
    </message>
    <message>
      <source>First name:</source>
      <translation>Vorname:</translation>
    </message>
    <message>
      <source>Last name:</source>
      <translation>Nachname:</translation>
    </message>
    <message>
      <source>E-mail:</source>
      <translation>E-Mail:</translation>
    </message>
    <message>
      <source>VAT ID:</source>
      <translation>USt-IdNr.:</translation>
    </message>
    <message>
      <source>Name:</source>
      <translation>Name:</translation>
    </message>
    <message>
      <source>Legal name:</source>
      <translation>Rechtlicher Name:</translation>
    </message>
    <message>
      <source>Contact:</source>
      <translation>Kontakt:</translation>
    </message>
    <message>
      <source>Street:</source>
      <translation>Straße:</translation>
    </message>
    <message>
      <source>Postal code:</source>
      <translation>Postleitzahl:</translation>
    </message>
    <message>
      <source>City:</source>
      <translation>Ort:</translation>
    </message>
    <message>
      <source>Country code:</source>
      <translation>Ländercode:</translation>
    </message>
    <message>
      <source>Tax scheme:</source>
      <translation>Steuerschema:</translation>
    </message>
    <message>
      <source>Currency:</source>
      <translation>Währung:</translation>
    </message>
    <message>
      <source>Choose Client</source>
      <translation>Kunde auswählen</translation>
    </message>
    <message>
      <source>No contacts to show. Tamo reads them from the vCard file or folder chosen in the preferences.</source>
      <translation>Keine Kontakte vorhanden. Tamo liest sie aus der vCard-Datei oder dem Ordner, die bzw. den Sie in den Einstellungen gewählt haben.</translation>
    </message>
    <message>
      <source>Open Contacts</source>
      <translation>Kontakte öffnen</translation>
    </message>
    <message>
      <source>Search</source>
      <translation>Suchen</translation>
    </message>
    <message>
      <source>Use Client</source>
      <translation>Kunde übernehmen</translation>
    </message>
    <message>
      <source>Contacts</source>
      <translation>Kontakte</translation>
    </message>
    <message>
      <source>Remembered Clients</source>
      <translation>Gespeicherte Kunden</translation>
    </message>
    <message>
      <source>Address:</source>
      <translation>Adresse:</translation>
    </message>
    <message>
      <source>New Client Number</source>
      <translation>Neue Kundennummer</translation>
    </message>
    <message>
      <source>Client no.:</source>
      <translation>Kundennr.:</translation>
    </message>
    <message>
      <source>E-invoice buyer</source>
      <translation>Käufer (E-Rechnung)</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>Übernehmen</translation>
    </message>
    <message>
      <source>%1 — %2</source>
      <translation>%1 — %2</translation>
    </message>
    <message>
      <source>Choose Client…</source>
      <translation>Kunde auswählen …</translation>
    </message>
    <message>
      <source>You have one ore more broken vcards in your %1; probably from a corrupted iCloud sync.

Please open your %1 and delete it or them. Usually, they are very easy to spot. Just look for 'No Name' or '(null)' and you may need to do this on your others devices as well, in case it is happening again.

After doing that, just restart Tamo and you will be able to select people and addresses without any problems.</source>
      <translation>In Ihrem %1 sind eine oder mehrere beschädigte vCards, wahrscheinlich durch eine fehlerhafte iCloud-Synchronisation.

Bitte öffnen Sie Ihr %1 und löschen Sie die betroffenen Einträge. Meist sind sie sehr leicht zu erkennen: Suchen Sie einfach nach „No Name“ oder „(null)“. Falls es erneut passiert, müssen Sie das eventuell auch auf Ihren anderen Geräten tun.

Starten Sie Tamo danach einfach neu, dann können Sie Personen und Adressen problemlos auswählen.</translation>
    </message>
    <message>
      <source>You need to provide an address pattern in the Preferences.</source>
      <translation>Sie müssen in den Einstellungen ein Adressmuster angeben.</translation>
    </message>
    <message>
      <source>Set Client</source>
      <translation>Kunde festlegen</translation>
    </message>
    <message>
      <source>Choose vCard File…</source>
      <translation>vCard-Datei auswählen …</translation>
    </message>
    <message>
      <source>Choose Folder…</source>
      <translation>Ordner auswählen …</translation>
    </message>
    <message>
      <source>Tamo takes its clients from an address book of vCard files (.vcf), and none is chosen yet; no contacts application was found to open instead. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>Tamo bezieht seine Kunden aus einem Adressbuch aus vCard-Dateien (.vcf), und es ist noch keines ausgewählt; es wurde auch keine Kontakte-Anwendung gefunden, die stattdessen geöffnet werden könnte. Wählen Sie eine vCard-Datei oder einen Ordner mit vCard-Dateien als Adressbuch.</translation>
    </message>
    <message>
      <source>The address book “%1” is not there any more. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>Das Adressbuch „%1“ ist nicht mehr vorhanden. Wählen Sie eine vCard-Datei oder einen Ordner mit vCard-Dateien als Adressbuch.</translation>
    </message>
    <message>
      <source>Choose Address Book</source>
      <translation>Adressbuch auswählen</translation>
    </message>
    <message>
      <source>Clients from the address book</source>
      <translation>Kunden aus dem Adressbuch</translation>
    </message>
    <message>
      <source>Address pattern:</source>
      <translation>Adressmuster:</translation>
    </message>
    <message>
      <source>Inserts the token at the cursor</source>
      <translation>Fügt den Platzhalter an der Cursorposition ein</translation>
    </message>
    <message>
      <source>Example:</source>
      <translation>Beispiel:</translation>
    </message>
    <message>
      <source>Client name:</source>
      <translation>Kundenname:</translation>
    </message>
    <message>
      <source>Last name</source>
      <translation>Nachname</translation>
    </message>
    <message>
      <source>First and last name</source>
      <translation>Vor- und Nachname</translation>
    </message>
    <message>
      <source>Title and last name</source>
      <translation>Titel und Nachname</translation>
    </message>
    <message>
      <source>Title and first name</source>
      <translation>Titel und Vorname</translation>
    </message>
    <message>
      <source>Title, first and last name</source>
      <translation>Titel, Vor- und Nachname</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Adressbuch</translation>
    </message>
    <message>
      <source>A vCard file, or a folder of them</source>
      <translation>Eine vCard-Datei oder ein Ordner mit vCard-Dateien</translation>
    </message>
    <message>
      <source>File…</source>
      <translation>Datei …</translation>
    </message>
    <message>
      <source>Folder…</source>
      <translation>Ordner …</translation>
    </message>
    <message>
      <source>Choose the Address Book</source>
      <translation>Adressbuch wählen</translation>
    </message>
    <message>
      <source>vCards (*.vcf *.vcard)</source>
      <translation>vCards (*.vcf *.vcard)</translation>
    </message>
    <message>
      <source>Choose the Folder of vCards</source>
      <translation>Ordner mit vCards wählen</translation>
    </message>
    <message>
      <source>vCards:</source>
      <translation>vCards:</translation>
    </message>
    <message>
      <source>Pop-overs open on</source>
      <translation>Anzeige beim Öffnen der Auswahlfenster</translation>
    </message>
    <message>
      <source>Client:</source>
      <translation>Kunde:</translation>
    </message>
    <message>
      <source>The address book</source>
      <translation>Adressbuch</translation>
    </message>
    <message>
      <source>The remembered clients</source>
      <translation>Gespeicherte Kunden</translation>
    </message>
    <message>
      <source>New line:</source>
      <translation>Neue Position:</translation>
    </message>
    <message>
      <source>An empty line</source>
      <translation>Leere Position</translation>
    </message>
    <message>
      <source>The catalog</source>
      <translation>Katalog</translation>
    </message>
    <message>
      <source>Shipping:</source>
      <translation>Versand:</translation>
    </message>
    <message>
      <source>The shipping entry</source>
      <translation>Versandeingabe</translation>
    </message>
    <message>
      <source>The remembered shipping</source>
      <translation>Gespeicherter Versand</translation>
    </message>
    <message>
      <source>Jane</source>
      <translation>Erika</translation>
    </message>
    <message>
      <source>Doe</source>
      <translation>Mustermann</translation>
    </message>
    <message>
      <source>Example Ltd</source>
      <translation>Beispiel GmbH</translation>
    </message>
    <message>
      <source>1 Main Street</source>
      <translation>Hauptstraße 1</translation>
    </message>
    <message>
      <source>Springfield</source>
      <translation>Musterstadt</translation>
    </message>
    <message>
      <source>62701</source>
      <translation>12345</translation>
    </message>
    <message>
      <source>IL</source>
      <translation>BY</translation>
    </message>
    <message>
      <source>United States</source>
      <translation>Deutschland</translation>
    </message>
    <message>
      <source>Dr.</source>
      <translation>Dr.</translation>
    </message>
    <message>
      <source>Client name: %1</source>
      <translation>Kundenname: %1</translation>
    </message>
    <message>
      <source>Without vCards, the client panel offers the remembered clients and lets you type a client.</source>
      <translation>Ohne vCards bietet der Kundenbereich die gespeicherten Kunden an und lässt Sie einen Kunden eintippen.</translation>
    </message>
    <message>
      <source>There is no file or folder at this place.</source>
      <translation>An diesem Ort gibt es weder eine Datei noch einen Ordner.</translation>
    </message>
    <message numerus="yes">
      <source>%n contact(s) found.</source>
      <translation>
        <numerusform>%n Kontakt gefunden.</numerusform>
        <numerusform>%n Kontakte gefunden.</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) cannot be read.</source>
      <translation>
        <numerusform>%n Karte kann nicht gelesen werden.</numerusform>
        <numerusform>%n Karten können nicht gelesen werden.</numerusform>
      </translation>
    </message>
    <message>
      <source>unknown option %1</source>
      <translation>unbekannte Option %1</translation>
    </message>
    <message>
      <source>%1 takes no value</source>
      <translation>%1 nimmt keinen Wert an</translation>
    </message>
    <message>
      <source>%1 needs a value</source>
      <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
      <source>Your name or your business's name</source>
      <translation>Ihr Name oder der Name Ihres Unternehmens</translation>
    </message>
    <message>
      <source>Slogan:</source>
      <translation>Slogan:</translation>
    </message>
    <message>
      <source>Address, phone, mail and web site, as your letterhead shows them</source>
      <translation>Adresse, Telefon, E-Mail und Website, wie sie Ihr Briefkopf zeigt</translation>
    </message>
    <message>
      <source>Name · Street 1 · 12345 Town</source>
      <translation>Name · Straße 1 · 12345 Ort</translation>
    </message>
    <message>
      <source>Sender line:</source>
      <translation>Absenderzeile:</translation>
    </message>
    <message>
      <source>Printed small above the client's address, so that it shows in the window of an envelope.</source>
      <translation>Wird klein über der Kundenadresse gedruckt, damit sie im Fenster eines Briefumschlags sichtbar ist.</translation>
    </message>
    <message>
      <source>Logo:</source>
      <translation>Logo:</translation>
    </message>
    <message>
      <source>Such as EUR</source>
      <translation>z. B. EUR</translation>
    </message>
    <message>
      <source>Sender</source>
      <translation>Absender</translation>
    </message>
    <message>
      <source>E-invoices (XRechnung)</source>
      <translation>E-Rechnungen (XRechnung)</translation>
    </message>
    <message>
      <source>“%1” is not a tax category for lines without taxes; choose one of E, AE, K, G, O or Z.</source>
      <translation>„%1“ ist keine Steuerkategorie für Positionen ohne Steuern; wählen Sie E, AE, K, G, O oder Z.</translation>
    </message>
    <message>
      <source>Line %1 has %2 taxes, and an e-invoice line carries one tax category: split it into one line per tax.</source>
      <translation>Position %1 hat %2 Steuern, eine Position in der E-Rechnung trägt aber nur eine Steuerkategorie: Teilen Sie sie in eine Position je Steuer auf.</translation>
    </message>
    <message>
      <source>Line %1 has a negative tax rate.</source>
      <translation>Position %1 hat einen negativen Steuersatz.</translation>
    </message>
    <message>
      <source>Line %1 has a compound tax, levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>Position %1 hat eine kumulative Steuer, die auf eine andere Steuer erhoben wird; die Regeln kennen nur Steuern auf den Nettobetrag.</translation>
    </message>
    <message>
      <source>The shipping has %1 taxes, and an e-invoice charge carries one tax category.</source>
      <translation>Der Versand hat %1 Steuern, ein Zuschlag in der E-Rechnung trägt aber nur eine Steuerkategorie.</translation>
    </message>
    <message>
      <source>The shipping's tax is compound (Preferences → Taxes), levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>Die Steuer auf den Versand ist kumulativ (Einstellungen → Steuern), wird also auf eine andere Steuer erhoben; die Regeln kennen nur Steuern auf den Nettobetrag.</translation>
    </message>
    <message>
      <source>The discount is calculated after taxes; the rules take allowances off the net amount.</source>
      <translation>Der Rabatt wird nach Steuern berechnet; die Regeln ziehen Abschläge vom Nettobetrag ab.</translation>
    </message>
    <message>
      <source>The discount has no value: a fixed discount on lines that add up to 0.</source>
      <translation>Der Rabatt hat keinen Wert: ein fester Rabatt auf Positionen, die zusammen 0 ergeben.</translation>
    </message>
    <message>
      <source>No printer is set up on this computer.</source>
      <translation>Auf diesem Computer ist kein Drucker eingerichtet.</translation>
    </message>
    <message>
      <source>Add a printer in the system settings, or save the document as a PDF file instead.</source>
      <translation>Fügen Sie in den Systemeinstellungen einen Drucker hinzu, oder speichern Sie das Dokument stattdessen als PDF-Datei.</translation>
    </message>
    <message>
      <source>The document could not be sent to the printer “%1”.</source>
      <translation>Das Dokument konnte nicht an den Drucker „%1“ gesendet werden.</translation>
    </message>
    <message>
      <source>The safety copy of your invoices was not written.</source>
      <translation>Die Sicherheitskopie Ihrer Rechnungen wurde nicht angelegt.</translation>
    </message>
    <message>
      <source>No valid backup file available. Please restore your Tamo database from your own (Time Machine) backups.</source>
      <translation>Keine gültige Sicherungsdatei vorhanden. Bitte stellen Sie Ihre Tamo-Datenbank aus Ihren eigenen Sicherungen (Time Machine) wieder her.</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from the safety copy. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Sie sind dabei, Ihre Tamo-Rechnungen aus der Sicherheitskopie wiederherzustellen. Dabei werden alle vorhandenen Rechnungen unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Restore…</source>
      <translation>Wiederherstellen …</translation>
    </message>
    <message>
      <source>Nothing was changed.</source>
      <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
      <source>Tamo has no database until it starts again.</source>
      <translation>Tamo hat bis zum nächsten Start keine Datenbank.</translation>
    </message>
    <message>
      <source>The database was not backed up.</source>
      <translation>Die Datenbank wurde nicht gesichert.</translation>
    </message>
    <message>
      <source>Your latest changes could not be saved first; please check them.</source>
      <translation>Ihre letzten Änderungen konnten vorher nicht gespeichert werden; bitte prüfen Sie sie.</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database</source>
      <translation>E-Tamo-Datenbank sichern</translation>
    </message>
    <message>
      <source>You are about to restore your entire E-Tamo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Sie sind dabei, Ihre gesamte E-Tamo-Datenbank aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Daten unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database</source>
      <translation>E-Tamo-Datenbank wiederherstellen</translation>
    </message>
    <message>
      <source>Backup Raw Database</source>
      <translation>Rohdatenbank sichern</translation>
    </message>
    <message>
      <source>You are about to replace your entire E-Tamo database with a raw copy of a database file. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Sie sind dabei, Ihre gesamte E-Tamo-Datenbank durch die Rohkopie einer Datenbankdatei zu ersetzen. Dabei werden alle vorhandenen Daten unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Restore Raw Database</source>
      <translation>Rohdatenbank wiederherstellen</translation>
    </message>
    <message>
      <source>Could not restore Tamo database automatically. Please do this by hand. In case of problems, simply contact the Sorel support.</source>
      <translation>Die Tamo-Datenbank konnte nicht automatisch wiederhergestellt werden. Bitte tun Sie dies von Hand. Bei Problemen wenden Sie sich einfach an den Sorel-Support.</translation>
    </message>
    <message>
      <source>You are about to move the database of Tamo's Flatpak edition here. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Sie sind dabei, die Datenbank der Flatpak-Ausgabe von Tamo hierher zu übernehmen. Dabei werden alle vorhandenen Daten unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Move…</source>
      <translation>Übernehmen …</translation>
    </message>
    <message>
      <source>There is no recovery copy yet. Tamo writes one before every restore that replaces stored data.</source>
      <translation>Es gibt noch keine Wiederherstellungskopie. Tamo legt vor jeder Wiederherstellung, die gespeicherte Daten ersetzt, eine an.</translation>
    </message>
    <message>
      <source>Recover Previous Database</source>
      <translation>Vorherige Datenbank zurückholen</translation>
    </message>
    <message>
      <source>You are about to return to the database as it was in “%1”. What is stored now is kept as another recovery copy. Do you want to do that?</source>
      <translation>Sie sind dabei, zur Datenbank im Stand „%1“ zurückzukehren. Der jetzige Stand wird als weitere Wiederherstellungskopie aufbewahrt. Möchten Sie das tun?</translation>
    </message>
    <message>
      <source>Recover…</source>
      <translation>Zurückholen …</translation>
    </message>
    <message>
      <source>Warning!</source>
      <translation>Warnung!</translation>
    </message>
    <message>
      <source>Without a recovery copy nothing was changed.</source>
      <translation>Ohne Wiederherstellungskopie wurde nichts verändert.</translation>
    </message>
    <message>
      <source>No file was written: the store could not be read completely.</source>
      <translation>Es wurde keine Datei geschrieben: Der Datenbestand konnte nicht vollständig gelesen werden.</translation>
    </message>
    <message>
      <source>No file was written.</source>
      <translation>Es wurde keine Datei geschrieben.</translation>
    </message>
    <message>
      <source>Export Tamo Database As XML</source>
      <translation>Tamo-Datenbank als XML exportieren</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices</source>
      <translation>Tamo-Rechnungen sichern</translation>
    </message>
    <message>
      <source>Backup Tamo Items</source>
      <translation>Tamo-Artikel sichern</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Sie sind dabei, Ihre Tamo-Rechnungen aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Rechnungen unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices</source>
      <translation>Tamo-Rechnungen wiederherstellen</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
      <translation>Sie sind dabei, Ihre Tamo-Artikel aus einer Sicherung wiederherzustellen. Dabei werden alle vorhandenen Artikel unwiderruflich ersetzt. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
      <source>Restore Tamo Items</source>
      <translation>Tamo-Artikel wiederherstellen</translation>
    </message>
    <message>
      <source>The file “%1” could not be restored.</source>
      <translation>Die Datei „%1“ konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
      <source>The records that were listed have been removed. The recovery copy “%1” holds them: File › Recover Previous Database… brings them back (on the command line: tamo --yes recover "%1").</source>
      <translation>Die aufgelisteten Datensätze wurden entfernt. Die Wiederherstellungskopie „%1“ enthält sie: Datei › Vorherige Datenbank zurückholen … holt sie zurück (auf der Kommandozeile: tamo --yes recover "%1").</translation>
    </message>
    <message numerus="yes">
      <source>%n record(s) carried an identity (uniqueID) that another record already has. Each was given a new one, so that every record can be found by its own.</source>
      <translation>
        <numerusform>%n Datensatz trug eine Identität (uniqueID), die ein anderer Datensatz bereits hat. Er hat eine neue erhalten, damit jeder Datensatz über seine eigene gefunden wird.</numerusform>
        <numerusform>%n Datensätze trugen eine Identität (uniqueID), die ein anderer Datensatz bereits hat. Jeder hat eine neue erhalten, damit jeder Datensatz über seine eigene gefunden wird.</numerusform>
      </translation>
    </message>
    <message>
      <source>Export As Invoices Dump</source>
      <translation>Als Rechnungsabzug exportieren</translation>
    </message>
    <message>
      <source>The integrity of your data is your responsibility, and yours alone. Tamo is just a stupid App and by design it can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
      <translation>Für die Richtigkeit Ihrer Daten sind Sie verantwortlich, und nur Sie. Tamo ist nur eine dumme App und kann von Haus aus weder doppelte Rechnungen noch durcheinandergeratene Nummern erkennen – und auch nicht, ob Sie heute einen schlechten Tag haben. Tun Sie sich also bitte den Gefallen und prüfen Sie, was Sie hier tun. Möchten Sie die Rechnung trotzdem importieren?</translation>
    </message>
    <message>
      <source>Import…</source>
      <translation>Importieren …</translation>
    </message>
    <message>
      <source>Import Tamo Document</source>
      <translation>Tamo-Dokument importieren</translation>
    </message>
    <message>
      <source>The document “%1” could not be imported.</source>
      <translation>Das Dokument „%1“ konnte nicht importiert werden.</translation>
    </message>
    <message>
      <source>It holds no document.</source>
      <translation>Sie enthält kein Dokument.</translation>
    </message>
    <message>
      <source>Import Document</source>
      <translation>Dokument importieren</translation>
    </message>
    <message>
      <source>Tamo, Tamo Documents, and the Tamo Database</source>
      <translation>Tamo, Tamo-Dokumente und die Tamo-Datenbank</translation>
    </message>
    <message>
      <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the 'File Menu' to open documents and to restore the Tamo database.</source>
      <translation>Um doppelte Einträge und Störungen zu vermeiden und die Datenbank intakt zu halten, verwenden Sie bitte das Menü „Datei“, um Dokumente zu öffnen und die Tamo-Datenbank wiederherzustellen.</translation>
    </message>
    <message>
      <source>Database</source>
      <translation>Datenbank</translation>
    </message>
    <message>
      <source>Move to Another Folder…</source>
      <translation>In anderen Ordner verschieben …</translation>
    </message>
    <message>
      <source>Move Back to the Default Folder</source>
      <translation>Zurück in den Standardordner verschieben</translation>
    </message>
    <message>
      <source>Choose the Folder for the Database</source>
      <translation>Ordner für die Datenbank wählen</translation>
    </message>
    <message>
      <source>Moving first saves a complete backup, then copies the database to the new folder and starts Tamo again there. The old folder keeps its copy.</source>
      <translation>Beim Verschieben wird zuerst eine vollständige Datensicherung gespeichert, dann wird die Datenbank in den neuen Ordner kopiert und Tamo dort neu gestartet. Der alte Ordner behält seine Kopie.</translation>
    </message>
    <message>
      <source>Backups</source>
      <translation>Datensicherungen</translation>
    </message>
    <message>
      <source>The safety copy is written at each start, when the last run ended in order. Before anything replaces stored data wholesale, Tamo keeps a recovery copy of the database; the ten newest are kept.</source>
      <translation>Die Sicherheitskopie wird bei jedem Start angelegt, wenn die letzte Sitzung ordnungsgemäß beendet wurde. Bevor gespeicherte Daten vollständig ersetzt werden, legt Tamo eine Wiederherstellungskopie der Datenbank an; die zehn neuesten werden aufbewahrt.</translation>
    </message>
    <message>
      <source>The database is in the default folder:
%1</source>
      <translation>Die Datenbank liegt im Standardordner:
%1</translation>
    </message>
    <message>
      <source>The database is in a folder you chose:
%1</source>
      <translation>Die Datenbank liegt in einem von Ihnen gewählten Ordner:
%1</translation>
    </message>
    <message>
      <source>No recovery copies yet.</source>
      <translation>Noch keine Wiederherstellungskopien.</translation>
    </message>
    <message numerus="yes">
      <source>%n recovery copies, the newest “%1”.</source>
      <translation>
        <numerusform>%n Wiederherstellungskopie: „%1“.</numerusform>
        <numerusform>%n Wiederherstellungskopien, die neueste: „%1“.</numerusform>
      </translation>
    </message>
    <message>
      <source>Calendar</source>
      <translation>Kalender</translation>
    </message>
    <message>
      <source>Choose the date in a calendar</source>
      <translation>Datum im Kalender auswählen</translation>
    </message>
    <message>
      <source>Choose a Design</source>
      <translation>Design auswählen</translation>
    </message>
    <message>
      <source>Add Design</source>
      <translation>Design hinzufügen</translation>
    </message>
    <message>
      <source>New Design</source>
      <translation>Neues Design</translation>
    </message>
    <message>
      <source>Delete</source>
      <translation>Löschen</translation>
    </message>
    <message>
      <source>Delete Design</source>
      <translation>Design löschen</translation>
    </message>
    <message>
      <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
      <translation>Das Löschen von Designs ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das ausgewählte Design wirklich löschen?</translation>
    </message>
    <message>
      <source>Make Default Design</source>
      <translation>Als Standarddesign festlegen</translation>
    </message>
    <message>
      <source>There is no open store to import the design into.</source>
      <translation>Es ist kein Datenspeicher geöffnet, in den das Design importiert werden könnte.</translation>
    </message>
    <message>
      <source>“%1” cannot be imported: %2</source>
      <translation>„%1“ kann nicht importiert werden: %2</translation>
    </message>
    <message>
      <source>Import Design</source>
      <translation>Design importieren</translation>
    </message>
    <message>
      <source>Import Tamo Design</source>
      <translation>Tamo-Design importieren</translation>
    </message>
    <message>
      <source>Export Tamo Design</source>
      <translation>Tamo-Design exportieren</translation>
    </message>
    <message>
      <source>There is no open store for the built-in designs.</source>
      <translation>Es ist kein Datenspeicher für die mitgelieferten Designs geöffnet.</translation>
    </message>
    <message>
      <source>Page</source>
      <translation>Seite</translation>
    </message>
    <message>
      <source>Row</source>
      <translation>Zeile</translation>
    </message>
    <message>
      <source>Style Sheet</source>
      <translation>Stylesheet</translation>
    </message>
    <message>
      <source>Preview</source>
      <translation>Vorschau</translation>
    </message>
    <message>
      <source>Add</source>
      <translation>Hinzufügen</translation>
    </message>
    <message>
      <source>Make Default</source>
      <translation>Als Standard festlegen</translation>
    </message>
    <message>
      <source>Export…</source>
      <translation>Exportieren …</translation>
    </message>
    <message>
      <source>Rename Design</source>
      <translation>Design umbenennen</translation>
    </message>
    <message>
      <source>Edit Design</source>
      <translation>Design bearbeiten</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the design preview.</source>
      <translation>Beim Erstellen der Designvorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Öffnen</translation>
    </message>
    <message>
      <source>Unable to start xdg-open for %1.</source>
      <translation>xdg-open konnte für %1 nicht gestartet werden.</translation>
    </message>
    <message>
      <source>No application opened %1.</source>
      <translation>Keine Anwendung hat %1 geöffnet.</translation>
    </message>
    <message>
      <source>xdg-open ended with code %1.</source>
      <translation>xdg-open wurde mit Code %1 beendet.</translation>
    </message>
    <message>
      <source>the records nest too deeply</source>
      <translation>die Datensätze sind zu tief verschachtelt</translation>
    </message>
    <message>
      <source>a record of kind %1 has no entry “%2”</source>
      <translation>ein Datensatz der Art %1 hat keinen Eintrag „%2“</translation>
    </message>
    <message>
      <source>%1, entry %2</source>
      <translation>%1, Eintrag %2</translation>
    </message>
    <message>
      <source>a list of records</source>
      <translation>eine Liste von Datensätzen</translation>
    </message>
    <message>
      <source>a record of kind “%1” stands where one of kind %2 belongs</source>
      <translation>ein Datensatz der Art „%1“ steht, wo einer der Art %2 hingehört</translation>
    </message>
    <message>
      <source>Grant a discount</source>
      <translation>Rabatt gewähren</translation>
    </message>
    <message>
      <source>Fixed amount</source>
      <translation>Fester Betrag</translation>
    </message>
    <message>
      <source>Percentage of the net sum</source>
      <translation>Prozentsatz der Nettosumme</translation>
    </message>
    <message>
      <source>Kind:</source>
      <translation>Art:</translation>
    </message>
    <message>
      <source>in %</source>
      <translation>in %</translation>
    </message>
    <message>
      <source>Amount:</source>
      <translation>Betrag:</translation>
    </message>
    <message>
      <source>Percentage:</source>
      <translation>Prozentsatz:</translation>
    </message>
    <message>
      <source>Print Invoice</source>
      <translation>Rechnung drucken</translation>
    </message>
    <message>
      <source>Export Invoice As PDF File</source>
      <translation>Rechnung als PDF-Datei exportieren</translation>
    </message>
    <message>
      <source>Send PDF Invoice As Mail Attachment</source>
      <translation>PDF-Rechnung als E-Mail-Anhang senden</translation>
    </message>
    <message>
      <source>Export Document File</source>
      <translation>Dokumentdatei exportieren</translation>
    </message>
    <message>
      <source>No design available. Please download or create a design.</source>
      <translation>Kein Design verfügbar. Bitte laden Sie ein Design herunter oder erstellen Sie eines.</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the preview.</source>
      <translation>Beim Erstellen der Vorschau ist etwas gründlich schiefgegangen.</translation>
    </message>
    <message>
      <source>Ooops!</source>
      <translation>Hoppla!</translation>
    </message>
    <message>
      <source>The document has not been printed into a PDF yet.</source>
      <translation>Das Dokument wurde noch nicht als PDF ausgegeben.</translation>
    </message>
    <message>
      <source>Export As PDF File</source>
      <translation>Als PDF-Datei exportieren</translation>
    </message>
    <message>
      <source>Show in Folder</source>
      <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
      <source>The file to attach is kept at %1; you can attach it to a message yourself.</source>
      <translation>Die anzuhängende Datei liegt unter %1; Sie können sie selbst an eine Nachricht anhängen.</translation>
    </message>
    <message>
      <source>Export As Tamo Document</source>
      <translation>Als Tamo-Dokument exportieren</translation>
    </message>
    <message>
      <source>Export As XML Document</source>
      <translation>Als XML-Dokument exportieren</translation>
    </message>
    <message>
      <source>&amp;Print…</source>
      <translation>&amp;Drucken …</translation>
    </message>
    <message>
      <source>Export As PD&amp;F…</source>
      <translation>Als PD&amp;F exportieren …</translation>
    </message>
    <message>
      <source>PDF</source>
      <translation>PDF</translation>
    </message>
    <message>
      <source>Send PDF by &amp;Mail…</source>
      <translation>PDF per &amp;E-Mail senden …</translation>
    </message>
    <message>
      <source>Mail</source>
      <translation>E-Mail</translation>
    </message>
    <message>
      <source>Export As Tamo &amp;Document…</source>
      <translation>Als &amp;Tamo-Dokument exportieren …</translation>
    </message>
    <message>
      <source>Export As XML &amp;Document…</source>
      <translation>Als &amp;XML-Dokument exportieren …</translation>
    </message>
    <message>
      <source>&lt;p style='font-size:large'&gt;No document selected&lt;/p&gt;&lt;p&gt;Create an invoice or a quote, or choose one from the list.&lt;/p&gt;</source>
      <translation>&lt;p style='font-size:large'&gt;Kein Dokument ausgewählt&lt;/p&gt;&lt;p&gt;Erstellen Sie eine Rechnung oder ein Angebot, oder wählen Sie eines aus der Liste.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>This document has been sent. Only its status and payment can change; set the status back to "Created" to edit the rest.</source>
      <translation>Dieses Dokument wurde versendet. Nur Status und Zahlung können noch geändert werden; setzen Sie den Status auf „Erstellt“ zurück, um den Rest zu bearbeiten.</translation>
    </message>
    <message>
      <source>Document</source>
      <translation>Dokument</translation>
    </message>
    <message>
      <source>Items</source>
      <translation>Positionen</translation>
    </message>
    <message>
      <source>Texts</source>
      <translation>Texte</translation>
    </message>
    <message>
      <source>Invoice</source>
      <translation>Rechnung</translation>
    </message>
    <message>
      <source>New Invoice</source>
      <translation>Neue Rechnung</translation>
    </message>
    <message>
      <source>New Quote</source>
      <translation>Neues Angebot</translation>
    </message>
    <message>
      <source>Duplicate</source>
      <translation>Duplizieren</translation>
    </message>
    <message>
      <source>Sorry!</source>
      <translation>Tut uns leid!</translation>
    </message>
    <message>
      <source>You can't convert an invoice into a quote.</source>
      <translation>Eine Rechnung kann nicht in ein Angebot umgewandelt werden.</translation>
    </message>
    <message>
      <source>Convert</source>
      <translation>Umwandeln</translation>
    </message>
    <message>
      <source>Convert Into Invoice</source>
      <translation>In Rechnung umwandeln</translation>
    </message>
    <message>
      <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can't undo this action.</source>
      <translation>Möchten Sie das ausgewählte Angebot wirklich in eine Rechnung umwandeln? Dabei ändern sich auch der Titel, die Textbausteine und der Zähler Ihrer Rechnungsnummern, und Sie können diesen Schritt nicht rückgängig machen.</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to 'Created' first.</source>
      <translation>Die ausgewählte Rechnung ist als bereits versendet markiert. Wenn Sie sie wirklich löschen müssen, setzen Sie ihren Status bitte zuerst auf „Erstellt“ zurück.</translation>
    </message>
    <message>
      <source>Delete Quote</source>
      <translation>Angebot löschen</translation>
    </message>
    <message>
      <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
      <translation>Das Löschen von Angeboten ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie das ausgewählte Angebot wirklich löschen?</translation>
    </message>
    <message>
      <source>Delete Invoice</source>
      <translation>Rechnung löschen</translation>
    </message>
    <message>
      <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
      <translation>Das Löschen von Rechnungen ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie die ausgewählte Rechnung wirklich löschen?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your quote counter so that you won't use the same quote number twice?</source>
      <translation>Soll Tamo Ihren Angebotszähler automatisch anpassen, damit Sie dieselbe Angebotsnummer nicht zweimal vergeben?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your invoice counter so that you won't use the same invoice number twice?</source>
      <translation>Soll Tamo Ihren Rechnungszähler automatisch anpassen, damit Sie dieselbe Rechnungsnummer nicht zweimal vergeben?</translation>
    </message>
    <message>
      <source>Set Delivery Date</source>
      <translation>Lieferdatum festlegen</translation>
    </message>
    <message>
      <source>Notification Already Created</source>
      <translation>Benachrichtigung bereits angelegt</translation>
    </message>
    <message>
      <source>You've already created a notification for this invoice. Do you really want to create another one?</source>
      <translation>Sie haben für diese Rechnung bereits eine Benachrichtigung angelegt. Möchten Sie wirklich noch eine anlegen?</translation>
    </message>
    <message>
      <source>Schedule Notification</source>
      <translation>Benachrichtigung planen</translation>
    </message>
    <message>
      <source>Number:</source>
      <translation>Nummer:</translation>
    </message>
    <message>
      <source>Subject:</source>
      <translation>Betreff:</translation>
    </message>
    <message>
      <source>Date:</source>
      <translation>Datum:</translation>
    </message>
    <message>
      <source>Status and Payment</source>
      <translation>Status und Zahlung</translation>
    </message>
    <message>
      <source>Status:</source>
      <translation>Status:</translation>
    </message>
    <message>
      <source>Paid amount:</source>
      <translation>Bezahlter Betrag:</translation>
    </message>
    <message>
      <source>Payment date:</source>
      <translation>Zahlungsdatum:</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>Lieferung</translation>
    </message>
    <message>
      <source>Dispatched</source>
      <translation>Geliefert</translation>
    </message>
    <message>
      <source>Show the delivery date and note number on the document</source>
      <translation>Lieferdatum und Lieferscheinnummer auf dem Dokument anzeigen</translation>
    </message>
    <message>
      <source>Delivery note no.:</source>
      <translation>Lieferschein-Nr.:</translation>
    </message>
    <message>
      <source>Today</source>
      <translation>Heute</translation>
    </message>
    <message>
      <source>Set the delivery date to today</source>
      <translation>Lieferdatum auf heute setzen</translation>
    </message>
    <message>
      <source>Delivery date:</source>
      <translation>Lieferdatum:</translation>
    </message>
    <message>
      <source>Valid until:</source>
      <translation>Gültig bis:</translation>
    </message>
    <message>
      <source>Due date:</source>
      <translation>Fälligkeitsdatum:</translation>
    </message>
    <message>
      <source>New Template</source>
      <translation>Neue Vorlage</translation>
    </message>
    <message>
      <source>Apply Template</source>
      <translation>Vorlage anwenden</translation>
    </message>
    <message>
      <source>Delete Template</source>
      <translation>Vorlage löschen</translation>
    </message>
    <message>
      <source>Edit Line</source>
      <translation>Position bearbeiten</translation>
    </message>
    <message>
      <source>The file passes the EN 16931 and XRechnung rules.</source>
      <translation>Die Datei erfüllt die Regeln von EN 16931 und XRechnung.</translation>
    </message>
    <message>
      <source>Notes:</source>
      <translation>Hinweise:</translation>
    </message>
    <message>
      <source>1 rule broken: the recipient's validator will likely reject this file.</source>
      <translation>1 Regel verletzt: Der Validator des Empfängers wird diese Datei wahrscheinlich ablehnen.</translation>
    </message>
    <message>
      <source>%1 rules broken: the recipient's validator will likely reject this file.</source>
      <translation>%1 Regeln verletzt: Der Validator des Empfängers wird diese Datei wahrscheinlich ablehnen.</translation>
    </message>
    <message>
      <source>Double-click a finding to go to what to change.</source>
      <translation>Doppelklicken Sie auf einen Befund, um zur Stelle zu gelangen, die Sie ändern müssen.</translation>
    </message>
    <message>
      <source>Change: %1</source>
      <translation>Ändern: %1</translation>
    </message>
    <message>
      <source>Export E-Invoice…</source>
      <translation>E-Rechnung exportieren …</translation>
    </message>
    <message>
      <source>E-Invoice</source>
      <translation>E-Rechnung</translation>
    </message>
    <message>
      <source>E-Invoice Details…</source>
      <translation>E-Rechnungsdetails …</translation>
    </message>
    <message>
      <source>E-Invoice Details</source>
      <translation>E-Rechnungsdetails</translation>
    </message>
    <message>
      <source>About E-Invoicing…</source>
      <translation>Über E-Rechnungen …</translation>
    </message>
    <message>
      <source>Send E-Invoice…</source>
      <translation>E-Rechnung senden …</translation>
    </message>
    <message>
      <source>Write the conformant file</source>
      <translation>Konforme Datei schreiben</translation>
    </message>
    <message>
      <source>Export the selected invoice as an XRechnung e-invoice (UBL XML file). If the preferences ask for it, the invoice is marked as sent.</source>
      <translation>Die ausgewählte Rechnung als E-Rechnung im Format XRechnung (UBL-XML-Datei) exportieren. Wenn die Einstellungen es vorsehen, wird die Rechnung als versendet markiert.</translation>
    </message>
    <message>
      <source>Discount and shipping as allowances and charges per tax category, lines without taxes in an exemption category, totals computed from the lines: the structure the EN 16931 rules require. The standard file is written as Tamo always wrote it.</source>
      <translation>Rabatt und Versand als Abschläge und Zuschläge je Steuerkategorie, Positionen ohne Steuern in einer Befreiungskategorie, Summen aus den Positionen berechnet: der Aufbau, den die Regeln von EN 16931 verlangen. Die Standarddatei wird so geschrieben, wie Tamo sie schon immer geschrieben hat.</translation>
    </message>
    <message>
      <source>Why they are untaxed, e.g. Kleinunternehmer gemäß § 19 UStG</source>
      <translation>Warum sie nicht besteuert werden, z. B. Kleinunternehmer gemäß § 19 UStG</translation>
    </message>
    <message>
      <source>Lines without taxes:</source>
      <translation>Positionen ohne Steuern:</translation>
    </message>
    <message>
      <source>Exemption reason:</source>
      <translation>Befreiungsgrund:</translation>
    </message>
    <message>
      <source>Rule check</source>
      <translation>Regelprüfung</translation>
    </message>
    <message>
      <source>Send by Mail…</source>
      <translation>Per E-Mail senden …</translation>
    </message>
    <message>
      <source>Preparing the document…</source>
      <translation>Dokument wird vorbereitet …</translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n Seite</numerusform>
        <numerusform>%n Seiten</numerusform>
      </translation>
    </message>
    <message>
      <source>Import Design?</source>
      <translation>Design importieren?</translation>
    </message>
    <message>
      <source>"%1" is a Tamo design. Do you want to add it to your designs?</source>
      <translation>„%1“ ist ein Tamo-Design. Möchten Sie es zu Ihren Designs hinzufügen?</translation>
    </message>
    <message>
      <source>Another Tamo already listens at %1.</source>
      <translation>Ein anderes Tamo wartet bereits unter %1 auf Anfragen.</translation>
    </message>
    <message>
      <source>Unable to listen at %1.</source>
      <translation>Unter %1 kann nicht auf Anfragen gewartet werden.</translation>
    </message>
    <message>
      <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
      <translation>FEHLER! IHR AUSGEWÄHLTES DESIGN IST DEFEKT ODER BESCHÄDIGT! BITTE BEHEBEN SIE DAS!</translation>
    </message>
    <message>
      <source>Invoice title</source>
      <translation>Rechnungstitel</translation>
    </message>
    <message>
      <source>Quote title</source>
      <translation>Angebotstitel</translation>
    </message>
    <message>
      <source>Reminder title</source>
      <translation>Mahnungstitel</translation>
    </message>
    <message>
      <source>Delivery slip title</source>
      <translation>Lieferscheintitel</translation>
    </message>
    <message>
      <source>Due date</source>
      <translation>Fälligkeitsdatum</translation>
    </message>
    <message>
      <source>Valid until (quotes)</source>
      <translation>Gültig bis (Angebote)</translation>
    </message>
    <message>
      <source>Overdue since (reminders)</source>
      <translation>Überfällig seit (Mahnungen)</translation>
    </message>
    <message>
      <source>Invoice number</source>
      <translation>Rechnungsnummer</translation>
    </message>
    <message>
      <source>Quote number</source>
      <translation>Angebotsnummer</translation>
    </message>
    <message>
      <source>Client number</source>
      <translation>Kundennummer</translation>
    </message>
    <message>
      <source>Line number</source>
      <translation>Positionsnummer</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>Beschreibung</translation>
    </message>
    <message>
      <source>Article number</source>
      <translation>Artikelnummer</translation>
    </message>
    <message>
      <source>Quantity</source>
      <translation>Menge</translation>
    </message>
    <message>
      <source>Unit</source>
      <translation>Einheit</translation>
    </message>
    <message>
      <source>Unit price</source>
      <translation>Einzelpreis</translation>
    </message>
    <message>
      <source>Net</source>
      <translation>Netto</translation>
    </message>
    <message>
      <source>Subtotal</source>
      <translation>Zwischensumme</translation>
    </message>
    <message>
      <source>Taxes</source>
      <translation>Steuern</translation>
    </message>
    <message>
      <source>Quotes</source>
      <translation>Angebote</translation>
    </message>
    <message>
      <source>Clients</source>
      <translation>Kunden</translation>
    </message>
    <message>
      <source>Reminders</source>
      <translation>Mahnungen</translation>
    </message>
    <message>
      <source>Delivery slips</source>
      <translation>Lieferscheine</translation>
    </message>
    <message>
      <source>Numbers and Dates</source>
      <translation>Nummern und Datumsangaben</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>Beschriftungen</translation>
    </message>
    <message>
      <source>Numbers</source>
      <translation>Nummern</translation>
    </message>
    <message>
      <source>Pattern</source>
      <translation>Muster</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>Versatz</translation>
    </message>
    <message>
      <source>Number new ones at once</source>
      <translation>Neue sofort nummerieren</translation>
    </message>
    <message>
      <source>%COUNT% is the number of documents so far plus the offset, plus 1; %YEAR%, %MONTH% and %DAY% are today's. Raise the offset to continue from numbers written elsewhere.</source>
      <translation>%COUNT% ist die bisherige Anzahl der Dokumente plus Versatz plus 1; %YEAR%, %MONTH% und %DAY% stehen für das heutige Datum. Erhöhen Sie den Versatz, um an anderswo vergebene Nummern anzuschließen.</translation>
    </message>
    <message>
      <source>Dates</source>
      <translation>Datumsangaben</translation>
    </message>
    <message>
      <source>7 days</source>
      <translation>7 Tage</translation>
    </message>
    <message>
      <source>14 days</source>
      <translation>14 Tage</translation>
    </message>
    <message>
      <source>21 days</source>
      <translation>21 Tage</translation>
    </message>
    <message>
      <source>28 days</source>
      <translation>28 Tage</translation>
    </message>
    <message>
      <source>New invoices are due in</source>
      <translation>Zahlungsziel neuer Rechnungen:</translation>
    </message>
    <message>
      <source>New quotes are valid for</source>
      <translation>Gültigkeit neuer Angebote:</translation>
    </message>
    <message>
      <source>Date pattern:</source>
      <translation>Datumsmuster:</translation>
    </message>
    <message>
      <source>Today:</source>
      <translation>Heute:</translation>
    </message>
    <message>
      <source>%DAY%, %MONTHSHORT% and %YEARSHORT% print two digits, %YEARLONG% four, %MONTHLONG% the month's name.</source>
      <translation>%DAY%, %MONTHSHORT% und %YEARSHORT% geben zwei Ziffern aus, %YEARLONG% vier, %MONTHLONG% den Namen des Monats.</translation>
    </message>
    <message>
      <source>Documents</source>
      <translation>Dokumente</translation>
    </message>
    <message>
      <source>Mark an invoice as sent when it is printed, saved, mailed or exported as an e-invoice</source>
      <translation>Rechnung als versendet markieren, wenn sie gedruckt, gespeichert, per E-Mail gesendet oder als E-Rechnung exportiert wird</translation>
    </message>
    <message>
      <source>Lines are sorted by:</source>
      <translation>Positionen sortieren nach:</translation>
    </message>
    <message>
      <source>The order they are stored in</source>
      <translation>Reihenfolge der Speicherung</translation>
    </message>
    <message>
      <source>The order of entry</source>
      <translation>Reihenfolge der Eingabe</translation>
    </message>
    <message>
      <source>Conditions:</source>
      <translation>Bedingungen:</translation>
    </message>
    <message>
      <source>Further text:</source>
      <translation>Weiterer Text:</translation>
    </message>
    <message>
      <source>Footer:</source>
      <translation>Fußzeile:</translation>
    </message>
    <message>
      <source>Texts of new</source>
      <translation>Texte für neue</translation>
    </message>
    <message>
      <source>New documents start with these texts; reminders and delivery slips show them on their sheet. The footer usually holds your bank details and registration numbers.</source>
      <translation>Neue Dokumente beginnen mit diesen Texten; Mahnungen und Lieferscheine zeigen sie auf ihrem Blatt. Die Fußzeile enthält üblicherweise Ihre Bankverbindung und Registernummern.</translation>
    </message>
    <message>
      <source>Mail message:</source>
      <translation>E-Mail-Text:</translation>
    </message>
    <message>
      <source>The words the designs print around your values, in the language of your documents.</source>
      <translation>Die Wörter, die die Designs rund um Ihre Werte drucken, in der Sprache Ihrer Dokumente.</translation>
    </message>
    <message>
      <source>(none)</source>
      <translation>(keine)</translation>
    </message>
    <message>
      <source>(the pattern prints nothing)</source>
      <translation>(das Muster gibt nichts aus)</translation>
    </message>
    <message>
      <source>Add Line</source>
      <translation>Position hinzufügen</translation>
    </message>
    <message>
      <source>Search the catalog</source>
      <translation>Katalog durchsuchen</translation>
    </message>
    <message>
      <source>Article no.</source>
      <translation>Artikel-Nr.</translation>
    </message>
    <message>
      <source>Price</source>
      <translation>Preis</translation>
    </message>
    <message>
      <source>Use Entry</source>
      <translation>Eintrag übernehmen</translation>
    </message>
    <message>
      <source>New Line</source>
      <translation>Neue Position</translation>
    </message>
    <message>
      <source>Catalog</source>
      <translation>Katalog</translation>
    </message>
    <message>
      <source>Ledrix asked for invoices of the kind "%1", which Tamo does not know.</source>
      <translation>Ledrix hat Rechnungen der Art „%1“ angefordert, die Tamo nicht kennt.</translation>
    </message>
    <message>
      <source>Ledrix asked for the dates "%1" and "%2", which Tamo cannot read.</source>
      <translation>Ledrix hat die Datumsangaben „%1“ und „%2“ angefordert, die Tamo nicht lesen kann.</translation>
    </message>
    <message>
      <source>Could not generate import data.
Please check your import settings in Ledrix.</source>
      <translation>Importdaten konnten nicht erzeugt werden.
Bitte prüfen Sie Ihre Importeinstellungen in Ledrix.</translation>
    </message>
    <message>
      <source>Could not write the import list for Ledrix.</source>
      <translation>Die Importliste für Ledrix konnte nicht geschrieben werden.</translation>
    </message>
    <message>
      <source>Send Invoices To Ledrix</source>
      <translation>Rechnungen an Ledrix senden</translation>
    </message>
    <message>
      <source>Send Invoices To Kelvane</source>
      <translation>Rechnungen an Kelvane senden</translation>
    </message>
    <message>
      <source>Unable to create the folder %1.</source>
      <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
      <source>Could not write Ledrix/Kelvane export data.</source>
      <translation>Exportdaten für Ledrix/Kelvane konnten nicht geschrieben werden.</translation>
    </message>
    <message>
      <source>Ledrix/Kelvane export file couldn't be opened. Please ensure that Ledrix or Kelvane is installed on your computer and running.</source>
      <translation>Die Exportdatei für Ledrix/Kelvane konnte nicht geöffnet werden. Bitte stellen Sie sicher, dass Ledrix oder Kelvane auf Ihrem Computer installiert ist und läuft.</translation>
    </message>
    <message>
      <source>'Send To' is obsolete. Please directly import invoices from within Ledrix.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</source>
      <translation>„Senden an“ ist veraltet. Bitte importieren Sie Rechnungen direkt aus Ledrix heraus.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</translation>
    </message>
    <message>
      <source>Website</source>
      <translation>Website</translation>
    </message>
    <message>
      <source>to</source>
      <translation>bis</translation>
    </message>
    <message>
      <source>Every sent invoice</source>
      <translation>Alle versendeten Rechnungen</translation>
    </message>
    <message>
      <source>Paid invoices</source>
      <translation>Bezahlte Rechnungen</translation>
    </message>
    <message>
      <source>Overdue invoices</source>
      <translation>Überfällige Rechnungen</translation>
    </message>
    <message>
      <source>One summary line per invoice</source>
      <translation>Eine Summenzeile je Rechnung</translation>
    </message>
    <message>
      <source>Every line of each invoice</source>
      <translation>Jede Position jeder Rechnung</translation>
    </message>
    <message>
      <source>Dated from:</source>
      <translation>Datiert von:</translation>
    </message>
    <message>
      <source>Invoices:</source>
      <translation>Rechnungen:</translation>
    </message>
    <message>
      <source>Lines:</source>
      <translation>Positionen:</translation>
    </message>
    <message>
      <source>Send</source>
      <translation>Senden</translation>
    </message>
    <message>
      <source>No invoice matches.</source>
      <translation>Keine Rechnung passt.</translation>
    </message>
    <message>
      <source>1 invoice will be sent.</source>
      <translation>1 Rechnung wird gesendet.</translation>
    </message>
    <message>
      <source>%1 invoices will be sent.</source>
      <translation>%1 Rechnungen werden gesendet.</translation>
    </message>
    <message>
      <source>Second line (optional)</source>
      <translation>Zweite Zeile (optional)</translation>
    </message>
    <message>
      <source>e.g. h, pcs</source>
      <translation>z. B. Std., Stk.</translation>
    </message>
    <message>
      <source>Unit:</source>
      <translation>Einheit:</translation>
    </message>
    <message>
      <source>Quantity:</source>
      <translation>Menge:</translation>
    </message>
    <message>
      <source>Unit price:</source>
      <translation>Einzelpreis:</translation>
    </message>
    <message>
      <source>Article no.:</source>
      <translation>Artikel-Nr.:</translation>
    </message>
    <message>
      <source>Note:</source>
      <translation>Notiz:</translation>
    </message>
    <message>
      <source>Taxes:</source>
      <translation>Steuern:</translation>
    </message>
    <message>
      <source>%1 (%2 %)</source>
      <translation>%1 (%2 %)</translation>
    </message>
    <message>
      <source>Tax %1</source>
      <translation>Steuer %1</translation>
    </message>
    <message>
      <source>Delete Item</source>
      <translation>Position löschen</translation>
    </message>
    <message>
      <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
      <translation>Das Löschen von Positionen ist endgültig und kann nicht rückgängig gemacht werden. Möchten Sie die ausgewählte Position wirklich löschen?</translation>
    </message>
    <message>
      <source>Delete Line</source>
      <translation>Position löschen</translation>
    </message>
    <message>
      <source>Default Title</source>
      <translation>Standardtitel</translation>
    </message>
    <message>
      <source>Edit Shipping</source>
      <translation>Versand bearbeiten</translation>
    </message>
    <message>
      <source>Choose Shipping</source>
      <translation>Versand auswählen</translation>
    </message>
    <message>
      <source>Edit Discount</source>
      <translation>Rabatt bearbeiten</translation>
    </message>
    <message>
      <source>%1 %2 %</source>
      <translation>%1 %2 %</translation>
    </message>
    <message>
      <source>Article no. %1</source>
      <translation>Artikel-Nr. %1</translation>
    </message>
    <message>
      <source>Qty</source>
      <translation>Menge</translation>
    </message>
    <message>
      <source>Unit Price</source>
      <translation>Einzelpreis</translation>
    </message>
    <message>
      <source>Add Line…</source>
      <translation>Position hinzufügen …</translation>
    </message>
    <message>
      <source>Edit…</source>
      <translation>Bearbeiten …</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>Entfernen</translation>
    </message>
    <message>
      <source>Shipping…</source>
      <translation>Versand …</translation>
    </message>
    <message>
      <source>Discount…</source>
      <translation>Rabatt …</translation>
    </message>
    <message>
      <source>Sort</source>
      <translation>Sortieren</translation>
    </message>
    <message>
      <source>Order of the lines</source>
      <translation>Reihenfolge der Positionen</translation>
    </message>
    <message>
      <source>In Order of Entry</source>
      <translation>In Eingabereihenfolge</translation>
    </message>
    <message>
      <source>By Title</source>
      <translation>Nach Titel</translation>
    </message>
    <message>
      <source>By Amount</source>
      <translation>Nach Betrag</translation>
    </message>
    <message>
      <source>As Stored</source>
      <translation>Wie gespeichert</translation>
    </message>
    <message>
      <source>the Tamo window (process %1, started as “%2”)</source>
      <translation>das Tamo-Fenster (Prozess %1, gestartet als „%2“)</translation>
    </message>
    <message>
      <source>the command “%2” (process %1)</source>
      <translation>den Befehl „%2“ (Prozess %1)</translation>
    </message>
    <message>
      <source> on the computer %1</source>
      <translation> auf dem Computer %1</translation>
    </message>
    <message>
      <source>Choose…</source>
      <translation>Auswählen …</translation>
    </message>
    <message>
      <source>No logo</source>
      <translation>Kein Logo</translation>
    </message>
    <message>
      <source>Designs that show a logo print a notice in its place until you choose one.</source>
      <translation>Designs, die ein Logo zeigen, drucken an seiner Stelle einen Hinweis, bis Sie eines auswählen.</translation>
    </message>
    <message>
      <source>Choose a Logo</source>
      <translation>Logo auswählen</translation>
    </message>
    <message>
      <source>Images (%1)</source>
      <translation>Bilder (%1)</translation>
    </message>
    <message>
      <source>%1 is missing; it comes with the package xdg-utils.</source>
      <translation>%1 fehlt; es ist im Paket xdg-utils enthalten.</translation>
    </message>
    <message>
      <source>%1 ended with code %2.</source>
      <translation>%1 wurde mit Code %2 beendet.</translation>
    </message>
    <message>
      <source>All Documents</source>
      <translation>Alle Dokumente</translation>
    </message>
    <message>
      <source>Open Invoices</source>
      <translation>Offene Rechnungen</translation>
    </message>
    <message>
      <source>Overdue and Partially Paid</source>
      <translation>Überfällig und teilweise bezahlt</translation>
    </message>
    <message>
      <source>Paid Invoices</source>
      <translation>Bezahlte Rechnungen</translation>
    </message>
    <message>
      <source>Last 12 Hours</source>
      <translation>Letzte 12 Stunden</translation>
    </message>
    <message>
      <source>Last Few Days</source>
      <translation>Letzte Tage</translation>
    </message>
    <message>
      <source>Last Two Weeks</source>
      <translation>Letzte zwei Wochen</translation>
    </message>
    <message>
      <source>Last Six Months</source>
      <translation>Letzte sechs Monate</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>&amp;Datei</translation>
    </message>
    <message>
      <source>New &amp;Invoice</source>
      <translation>Neue &amp;Rechnung</translation>
    </message>
    <message>
      <source>New &amp;Quote</source>
      <translation>Neues &amp;Angebot</translation>
    </message>
    <message>
      <source>&amp;Save</source>
      <translation>&amp;Speichern</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>&amp;Beenden</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Rückgängig</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
      <source>&amp;Find…</source>
      <translation>&amp;Suchen …</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>&amp;Ansicht</translation>
    </message>
    <message>
      <source>&amp;Document</source>
      <translation>D&amp;okument</translation>
    </message>
    <message>
      <source>&amp;Client</source>
      <translation>&amp;Kunde</translation>
    </message>
    <message>
      <source>&amp;Items</source>
      <translation>&amp;Positionen</translation>
    </message>
    <message>
      <source>&amp;Texts</source>
      <translation>&amp;Texte</translation>
    </message>
    <message>
      <source>D&amp;uplicate</source>
      <translation>D&amp;uplizieren</translation>
    </message>
    <message>
      <source>Duplicate with &amp;Lines</source>
      <translation>Mit &amp;Positionen duplizieren</translation>
    </message>
    <message>
      <source>&amp;Convert to Invoice</source>
      <translation>In &amp;Rechnung umwandeln</translation>
    </message>
    <message>
      <source>Choose C&amp;lient…</source>
      <translation>&amp;Kunde auswählen …</translation>
    </message>
    <message>
      <source>&amp;Add Line…</source>
      <translation>Position &amp;hinzufügen …</translation>
    </message>
    <message>
      <source>S&amp;hipping…</source>
      <translation>&amp;Versand …</translation>
    </message>
    <message>
      <source>Disc&amp;ount…</source>
      <translation>Ra&amp;batt …</translation>
    </message>
    <message>
      <source>Set Deli&amp;very Date</source>
      <translation>&amp;Lieferdatum festlegen</translation>
    </message>
    <message>
      <source>&amp;Reminder…</source>
      <translation>&amp;Mahnung …</translation>
    </message>
    <message>
      <source>Delivery &amp;Slip…</source>
      <translation>Liefers&amp;chein …</translation>
    </message>
    <message>
      <source>Due-Date &amp;Notification…</source>
      <translation>Benachrichtigung zur &amp;Fälligkeit …</translation>
    </message>
    <message>
      <source>Main</source>
      <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
      <source>&amp;Filter</source>
      <translation>&amp;Filter</translation>
    </message>
    <message>
      <source>Filter the list</source>
      <translation>Liste filtern</translation>
    </message>
    <message>
      <source>&amp;Undo %1</source>
      <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
      <source>&amp;Redo %1</source>
      <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
      <source>Reminder</source>
      <translation>Mahnung</translation>
    </message>
    <message>
      <source>Delivery Slip</source>
      <translation>Lieferschein</translation>
    </message>
    <message>
      <source>Read-only: %1</source>
      <translation>Nur lesen: %1</translation>
    </message>
    <message>
      <source>%1 (read-only)</source>
      <translation>%1 (nur lesen)</translation>
    </message>
    <message>
      <source>Invoices: %1   Quotes: %2   Total: %3   Paid: %4   Due: %5</source>
      <translation>Rechnungen: %1   Angebote: %2   Gesamt: %3   Bezahlt: %4   Offen: %5</translation>
    </message>
    <message>
      <source>Due-Date Notification</source>
      <translation>Benachrichtigung zur Fälligkeit</translation>
    </message>
    <message>
      <source>Optional message</source>
      <translation>Optionale Nachricht</translation>
    </message>
    <message>
      <source>Message:</source>
      <translation>Nachricht:</translation>
    </message>
    <message>
      <source>Remind me on:</source>
      <translation>Erinnern am:</translation>
    </message>
    <message>
      <source>Schedule</source>
      <translation>Planen</translation>
    </message>
    <message>
      <source>The page renderer stopped unexpectedly.</source>
      <translation>Der Seitenrenderer wurde unerwartet beendet.</translation>
    </message>
    <message>
      <source>The page renderer was stopped and cannot start again in this process.</source>
      <translation>Der Seitenrenderer wurde angehalten und kann in diesem Prozess nicht erneut gestartet werden.</translation>
    </message>
    <message>
      <source>The page could not be handed to the renderer: %1</source>
      <translation>Die Seite konnte nicht an den Renderer übergeben werden: %1</translation>
    </message>
    <message>
      <source>The page could not be loaded.</source>
      <translation>Die Seite konnte nicht geladen werden.</translation>
    </message>
    <message>
      <source>The page could not be printed.</source>
      <translation>Die Seite konnte nicht gedruckt werden.</translation>
    </message>
    <message>
      <source>The design's layout ran away: it made %1 pages, more than the %2 that are printed. Check the design's style sheet.</source>
      <translation>Das Layout des Designs ist außer Kontrolle geraten: Es hat %1 Seiten erzeugt, mehr als die %2, die gedruckt werden. Prüfen Sie das Stylesheet des Designs.</translation>
    </message>
    <message>
      <source>The page took longer than %1 seconds to print, so it was stopped. The design's layout may be running away; check its style sheet.</source>
      <translation>Das Drucken der Seite dauerte länger als %1 Sekunden und wurde daher abgebrochen. Möglicherweise ist das Layout des Designs außer Kontrolle geraten; prüfen Sie sein Stylesheet.</translation>
    </message>
    <message>
      <source>&amp;Preferences…</source>
      <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
      <source>Setup &amp;Assistant…</source>
      <translation>Einrichtungs&amp;assistent …</translation>
    </message>
    <message>
      <source>no document is selected</source>
      <translation>es ist kein Dokument ausgewählt</translation>
    </message>
    <message>
      <source>step 2: the invoice amount is missing or 0</source>
      <translation>Schritt 2: der Rechnungsbetrag fehlt oder ist 0</translation>
    </message>
    <message>
      <source>step 3: the invoice has no items</source>
      <translation>Schritt 3: die Rechnung hat keine Positionen</translation>
    </message>
    <message>
      <source>step 4: discounts are not calculated before taxes (beforeTaxesBool)</source>
      <translation>Schritt 4: Rabatte werden nicht vor Steuern berechnet (beforeTaxesBool)</translation>
    </message>
    <message>
      <source>step 5: the supplier setting %1 is empty</source>
      <translation>Schritt 5: die Absendereinstellung %1 ist leer</translation>
    </message>
    <message>
      <source>step 6: the invoice's %1 is empty</source>
      <translation>Schritt 6: %1 der Rechnung ist leer</translation>
    </message>
    <message>
      <source>Paper and printing</source>
      <translation>Papier und Druck</translation>
    </message>
    <message>
      <source>Paper size:</source>
      <translation>Papierformat:</translation>
    </message>
    <message>
      <source>US Letter</source>
      <translation>US Letter</translation>
    </message>
    <message>
      <source>US Legal</source>
      <translation>US Legal</translation>
    </message>
    <message>
      <source>A4</source>
      <translation>A4</translation>
    </message>
    <message>
      <source>JIS B4</source>
      <translation>JIS B4</translation>
    </message>
    <message>
      <source>JIS B5</source>
      <translation>JIS B5</translation>
    </message>
    <message>
      <source>Print without margins (for designs that set their own)</source>
      <translation>Ohne Ränder drucken (für Designs, die eigene Ränder festlegen)</translation>
    </message>
    <message>
      <source>Printing:</source>
      <translation>Drucken:</translation>
    </message>
    <message>
      <source>Print at once</source>
      <translation>Sofort drucken</translation>
    </message>
    <message>
      <source>Show the print dialog first</source>
      <translation>Zuerst den Druckdialog anzeigen</translation>
    </message>
    <message>
      <source>Files and notifications</source>
      <translation>Dateien und Benachrichtigungen</translation>
    </message>
    <message>
      <source>Save a document file as:</source>
      <translation>Dokumentdatei speichern als:</translation>
    </message>
    <message>
      <source>Tamo document (.tamo)</source>
      <translation>Tamo-Dokument (.tamo)</translation>
    </message>
    <message>
      <source>XML property list (.xml)</source>
      <translation>XML-Eigenschaftsliste (.xml)</translation>
    </message>
    <message>
      <source>Play a sound with due-date notifications</source>
      <translation>Bei Benachrichtigungen zur Fälligkeit einen Ton abspielen</translation>
    </message>
    <message>
      <source>Region</source>
      <translation>Region</translation>
    </message>
    <message>
      <source>No region is set for this system, so numbers are typed and shown as %1.</source>
      <translation>Für dieses System ist keine Region eingestellt, daher werden Zahlen im Format %1 eingegeben und angezeigt.</translation>
    </message>
    <message>
      <source>Numbers are typed and shown as the system's region has it: %1, for example %2.</source>
      <translation>Zahlen werden so eingegeben und angezeigt, wie es die Region des Systems vorsieht: %1, zum Beispiel %2.</translation>
    </message>
    <message>
      <source>Document dates follow the date pattern of the Invoice pane.</source>
      <translation>Datumsangaben in Dokumenten folgen dem Datumsmuster im Bereich „Rechnung“.</translation>
    </message>
    <message>
      <source>Show Delivery Slip</source>
      <translation>Lieferschein anzeigen</translation>
    </message>
    <message>
      <source>Show Reminder</source>
      <translation>Mahnung anzeigen</translation>
    </message>
    <message>
      <source>Preview (updating…)</source>
      <translation>Vorschau (wird aktualisiert …)</translation>
    </message>
    <message>
      <source>Choose &amp;Design…</source>
      <translation>&amp;Design auswählen …</translation>
    </message>
    <message>
      <source>Document &amp;Templates…</source>
      <translation>Dokumentvorla&amp;gen …</translation>
    </message>
    <message>
      <source>Preview as Re&amp;minder</source>
      <translation>Vorschau als M&amp;ahnung</translation>
    </message>
    <message>
      <source>Preview as Delivery Sli&amp;p</source>
      <translation>Vorschau als Liefer&amp;schein</translation>
    </message>
    <message>
      <source>Refresh Pre&amp;view</source>
      <translation>Vorschau ak&amp;tualisieren</translation>
    </message>
    <message>
      <source>The report is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
      <translation>Der Bericht bezieht sich auf die Rechnungen, wie sie im Hauptfenster von Tamo aufgelistet sind. So können Sie zum Beispiel nach einem Kunden suchen und den Bericht nur für diesen einen Kunden sehen, oder Ihre Rechnungen vorab filtern, um einen Bericht nur über überfällige Rechnungen zu erhalten.</translation>
    </message>
    <message>
      <source>Sales &amp;Report</source>
      <translation>Umsatz&amp;bericht</translation>
    </message>
    <message>
      <source>Report</source>
      <translation>Bericht</translation>
    </message>
    <message>
      <source>Counts and sums of the listed invoices</source>
      <translation>Anzahl und Summen der aufgelisteten Rechnungen</translation>
    </message>
    <message>
      <source>Print &amp;Account Book…</source>
      <translation>&amp;Rechnungsbuch drucken …</translation>
    </message>
    <message>
      <source>&amp;Reports</source>
      <translation>Be&amp;richte</translation>
    </message>
    <message>
      <source>Account Book</source>
      <translation>Rechnungsbuch</translation>
    </message>
    <message>
      <source>Print Account Book</source>
      <translation>Rechnungsbuch drucken</translation>
    </message>
    <message>
      <source>The account book could not be printed.</source>
      <translation>Das Rechnungsbuch konnte nicht gedruckt werden.</translation>
    </message>
    <message>
      <source>Date Range…</source>
      <translation>Zeitraum …</translation>
    </message>
    <message>
      <source>Print…</source>
      <translation>Drucken …</translation>
    </message>
    <message>
      <source>Sales Report</source>
      <translation>Umsatzbericht</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>Aktualisieren</translation>
    </message>
    <message>
      <source>Documents of the main list: %1</source>
      <translation>Dokumente der Hauptliste: %1</translation>
    </message>
    <message>
      <source>All dates</source>
      <translation>Gesamter Zeitraum</translation>
    </message>
    <message>
      <source>%1 to %2</source>
      <translation>%1 bis %2</translation>
    </message>
    <message>
      <source>Only documents dated in this range</source>
      <translation>Nur Dokumente mit Datum in diesem Zeitraum</translation>
    </message>
    <message>
      <source>From:</source>
      <translation>Von:</translation>
    </message>
    <message>
      <source>To:</source>
      <translation>Bis:</translation>
    </message>
    <message>
      <source>Print Sales Report</source>
      <translation>Umsatzbericht drucken</translation>
    </message>
    <message>
      <source>%1 is marked as sent</source>
      <translation>%1 ist als versendet markiert</translation>
    </message>
    <message>
      <source>Type a whole number, such as 0 or 12.</source>
      <translation>Geben Sie eine ganze Zahl ein, z. B. 0 oder 12.</translation>
    </message>
    <message>
      <source>Type a percentage between 0 and 100, such as %1 or %2.</source>
      <translation>Geben Sie einen Prozentsatz zwischen 0 und 100 ein, z. B. %1 oder %2.</translation>
    </message>
    <message>
      <source>Your settings could not be saved to “%1”.</source>
      <translation>Ihre Einstellungen konnten nicht in „%1“ gespeichert werden.</translation>
    </message>
    <message>
      <source>Continue…</source>
      <translation>Weiter …</translation>
    </message>
    <message>
      <source>It seems that you've already setup E-Tamo and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
      <translation>Anscheinend haben Sie E-Tamo bereits eingerichtet und den Einrichtungsassistenten mindestens einmal ausgeführt. Wenn Sie ihn erneut ausführen, werden alle Ihre Anpassungen gelöscht und durch die Standardwerte ersetzt. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
      <source>Letter</source>
      <translation>Letter</translation>
    </message>
    <message>
      <source>Legal</source>
      <translation>Legal</translation>
    </message>
    <message>
      <source>A new invoice is titled “%1”, numbered like %2, in %3, with %4, printed on %5 paper.</source>
      <translation>Eine neue Rechnung trägt den Titel „%1“, wird wie %2 nummeriert, lautet auf %3, enthält %4 und wird auf Papier im Format %5 gedruckt.</translation>
    </message>
    <message>
      <source>no taxes</source>
      <translation>keine Steuern</translation>
    </message>
    <message>
      <source> and </source>
      <translation> und </translation>
    </message>
    <message numerus="yes">
      <source>E-invoices still need %n supplier detail(s) in Edit → Preferences → Company.</source>
      <translation>
        <numerusform>E-Rechnungen benötigen noch %n Angabe zum Rechnungssteller unter Bearbeiten → Einstellungen → Unternehmen.</numerusform>
        <numerusform>E-Rechnungen benötigen noch %n Angaben zum Rechnungssteller unter Bearbeiten → Einstellungen → Unternehmen.</numerusform>
      </translation>
    </message>
    <message>
      <source>Yes, please!</source>
      <translation>Ja, bitte!</translation>
    </message>
    <message>
      <source>RTFM</source>
      <translation>RTFM</translation>
    </message>
    <message>
      <source>Would you like to take a quick look at the illustrated and easy-to-understand instructions before you create your first invoice?</source>
      <translation>Möchten Sie vor Ihrer ersten Rechnung einen kurzen Blick in die bebilderte und leicht verständliche Anleitung werfen?</translation>
    </message>
    <message>
      <source>No, I prefer to suffer in silence.</source>
      <translation>Nein, ich leide lieber still vor mich hin.</translation>
    </message>
    <message>
      <source>Back</source>
      <translation>Zurück</translation>
    </message>
    <message>
      <source>Continue</source>
      <translation>Weiter</translation>
    </message>
    <message>
      <source>Setup Assistant</source>
      <translation>Einrichtungsassistent</translation>
    </message>
    <message>
      <source>Welcome to Tamo</source>
      <translation>Willkommen bei Tamo</translation>
    </message>
    <message>
      <source>In which language do you write your invoices? Tamo fills its settings with starting values for it: the labels and texts of your documents, number patterns, date format, currency, taxes and paper size. You can change each of them later in the preferences.</source>
      <translation>In welcher Sprache schreiben Sie Ihre Rechnungen? Tamo füllt seine Einstellungen mit passenden Startwerten: Beschriftungen und Texte Ihrer Dokumente, Nummernmuster, Datumsformat, Währung, Steuern und Papierformat. Sie können jeden dieser Werte später in den Einstellungen ändern.</translation>
    </message>
    <message>
      <source>Your Business</source>
      <translation>Ihr Unternehmen</translation>
    </message>
    <message>
      <source>This is how your documents name you. Everything can be changed later under Edit → Preferences → Company.</source>
      <translation>So werden Sie in Ihren Dokumenten genannt. Alles lässt sich später unter Bearbeiten → Einstellungen → Unternehmen ändern.</translation>
    </message>
    <message>
      <source>E-Invoices</source>
      <translation>E-Rechnungen</translation>
    </message>
    <message>
      <source>Public clients in Germany, and more and more businesses, ask for e-invoices (XRechnung). For them, Tamo needs these details of your business. You can fill them in later as well.</source>
      <translation>Öffentliche Auftraggeber in Deutschland und immer mehr Unternehmen verlangen E-Rechnungen (XRechnung). Dafür benötigt Tamo diese Angaben zu Ihrem Unternehmen. Sie können sie auch später ausfüllen.</translation>
    </message>
    <message>
      <source>All Set</source>
      <translation>Alles bereit</translation>
    </message>
    <message>
      <source>Create your first invoice with File → New Invoice, choose its look with Document → Choose Design, and find every setting under Edit → Preferences. The assistant can be run again from the Edit menu.</source>
      <translation>Erstellen Sie Ihre erste Rechnung mit Datei → Neue Rechnung, wählen Sie ihr Aussehen mit Dokument → Design auswählen, und finden Sie alle Einstellungen unter Bearbeiten → Einstellungen. Der Assistent kann über das Menü „Bearbeiten“ erneut gestartet werden.</translation>
    </message>
    <message>
      <source>Quit Tamo</source>
      <translation>Tamo beenden</translation>
    </message>
    <message>
      <source>Start Using Tamo</source>
      <translation>Mit Tamo beginnen</translation>
    </message>
    <message>
      <source>Charge shipping</source>
      <translation>Versand berechnen</translation>
    </message>
    <message>
      <source>Remembered</source>
      <translation>Gespeichert</translation>
    </message>
    <message>
      <source>This store is open for reading only, so nothing in it can be changed. %1</source>
      <translation>Dieser Datenbestand ist nur zum Lesen geöffnet, daher kann darin nichts geändert werden. %1</translation>
    </message>
    <message>
      <source>The store “%1” could not be opened.</source>
      <translation>Der Datenbestand „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
      <source>It holds no Tamo data, and it may only be read.</source>
      <translation>Er enthält keine Tamo-Daten und darf nur gelesen werden.</translation>
    </message>
    <message>
      <source>The store “%1” could not be read.</source>
      <translation>Der Datenbestand „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
      <source>Your changes were not saved.</source>
      <translation>Ihre Änderungen wurden nicht gespeichert.</translation>
    </message>
    <message>
      <source>The lock file “%1” could not be made.</source>
      <translation>Die Sperrdatei „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
      <source>The store “%1” is in use by %2.</source>
      <translation>Der Datenbestand „%1“ wird von %2 verwendet.</translation>
    </message>
    <message>
      <source>Close that window first, or make the change there.</source>
      <translation>Schließen Sie zuerst dieses Fenster oder nehmen Sie die Änderung dort vor.</translation>
    </message>
    <message>
      <source>Try again when it has finished.</source>
      <translation>Versuchen Sie es erneut, wenn er fertig ist.</translation>
    </message>
    <message>
      <source>Tamo first saves a complete backup of the database, then copies the database to “%1” and continues with it there. The database in “%2” is left as it is.</source>
      <translation>Tamo speichert zuerst eine vollständige Datensicherung der Datenbank, kopiert die Datenbank dann nach „%1“ und arbeitet dort mit ihr weiter. Die Datenbank in „%2“ bleibt unverändert.</translation>
    </message>
    <message>
      <source>The Tamo database already in “%1” will be replaced.</source>
      <translation>Die bereits in „%1“ vorhandene Tamo-Datenbank wird ersetzt.</translation>
    </message>
    <message>
      <source>Move</source>
      <translation>Verschieben</translation>
    </message>
    <message>
      <source>Move Database</source>
      <translation>Datenbank verschieben</translation>
    </message>
    <message>
      <source>Legal name</source>
      <translation>Rechtlicher Name</translation>
    </message>
    <message>
      <source>As registered</source>
      <translation>Wie im Register eingetragen</translation>
    </message>
    <message>
      <source>Such as DE123456789</source>
      <translation>z. B. DE123456789</translation>
    </message>
    <message>
      <source>Company ID</source>
      <translation>Unternehmenskennung</translation>
    </message>
    <message>
      <source>Optional: register or tax number</source>
      <translation>Optional: Register- oder Steuernummer</translation>
    </message>
    <message>
      <source>Tax scheme</source>
      <translation>Steuerschema</translation>
    </message>
    <message>
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message>
      <source>Postal code</source>
      <translation>Postleitzahl</translation>
    </message>
    <message>
      <source>Country code</source>
      <translation>Ländercode</translation>
    </message>
    <message>
      <source>Two letters, such as DE</source>
      <translation>Zwei Buchstaben, z. B. DE</translation>
    </message>
    <message>
      <source>Contact person</source>
      <translation>Ansprechpartner</translation>
    </message>
    <message>
      <source>Phone</source>
      <translation>Telefon</translation>
    </message>
    <message>
      <source>Mail address</source>
      <translation>E-Mail-Adresse</translation>
    </message>
    <message>
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message>
      <source>Electronic address (GLN)</source>
      <translation>Elektronische Adresse (GLN)</translation>
    </message>
    <message>
      <source>Optional; without it, the mail address</source>
      <translation>Optional; ohne Angabe gilt die E-Mail-Adresse</translation>
    </message>
    <message>
      <source>New clients taken from the address book get:</source>
      <translation>Neue Kunden aus dem Adressbuch erhalten:</translation>
    </message>
    <message>
      <source>this tax scheme</source>
      <translation>dieses Steuerschema</translation>
    </message>
    <message>
      <source>this country code</source>
      <translation>diesen Ländercode</translation>
    </message>
    <message>
      <source>this currency</source>
      <translation>diese Währung</translation>
    </message>
    <message>
      <source>The e-invoice check finds every supplier detail it needs.</source>
      <translation>Die E-Rechnungsprüfung findet alle benötigten Angaben zum Rechnungssteller.</translation>
    </message>
    <message>
      <source>The e-invoice check still misses: %1.</source>
      <translation>Der E-Rechnungsprüfung fehlen noch: %1.</translation>
    </message>
    <message>
      <source>, </source>
      <translation>, </translation>
    </message>
    <message>
      <source>Tamo cannot answer this request.</source>
      <translation>Tamo kann diese Anfrage nicht beantworten.</translation>
    </message>
    <message>
      <source>The address is %1 characters long, longer than any request to Tamo.</source>
      <translation>Die Adresse ist %1 Zeichen lang, länger als jede Anfrage an Tamo.</translation>
    </message>
    <message>
      <source>"%1" is not a tamo:// address.</source>
      <translation>„%1“ ist keine tamo://-Adresse.</translation>
    </message>
    <message>
      <source>A request to Tamo has no path.</source>
      <translation>Eine Anfrage an Tamo hat keinen Pfad.</translation>
    </message>
    <message>
      <source>Tamo does not know the request "%1".</source>
      <translation>Tamo kennt die Anfrage „%1“ nicht.</translation>
    </message>
    <message>
      <source>The request to import into Ledrix lacks its "%1".</source>
      <translation>Der Anfrage zum Import in Ledrix fehlt „%1“.</translation>
    </message>
    <message>
      <source>Taxes of new documents and lines</source>
      <translation>Steuern neuer Dokumente und Positionen</translation>
    </message>
    <message>
      <source>Rate (%)</source>
      <translation>Satz (%)</translation>
    </message>
    <message>
      <source>Compound</source>
      <translation>Kumulativ</translation>
    </message>
    <message>
      <source>A tax that is switched on is offered for each line and printed in the totals. A compound tax is levied on the net plus the taxes before it.</source>
      <translation>Eine eingeschaltete Steuer wird für jede Position angeboten und in den Summen gedruckt. Eine kumulative Steuer wird auf den Nettobetrag zuzüglich der vorhergehenden Steuern erhoben.</translation>
    </message>
    <message>
      <source>Totals and lines</source>
      <translation>Summen und Positionen</translation>
    </message>
    <message>
      <source>Take the discount off before taxes (e-invoices need this)</source>
      <translation>Rabatt vor Steuern abziehen (für E-Rechnungen erforderlich)</translation>
    </message>
    <message>
      <source>Show each line's tax amounts</source>
      <translation>Steuerbeträge jeder Position anzeigen</translation>
    </message>
    <message>
      <source>Show each line's net amount</source>
      <translation>Nettobetrag jeder Position anzeigen</translation>
    </message>
    <message>
      <source>Show article numbers</source>
      <translation>Artikelnummern anzeigen</translation>
    </message>
    <message>
      <source>A new document template takes over</source>
      <translation>Eine neue Dokumentvorlage übernimmt</translation>
    </message>
    <message>
      <source>Its texts, currency and tax rates are always taken over.</source>
      <translation>Texte, Währung und Steuersätze werden immer übernommen.</translation>
    </message>
    <message>
      <source>Keep the list of templates open after applying one</source>
      <translation>Vorlagenliste nach dem Anwenden einer Vorlage geöffnet lassen</translation>
    </message>
    <message>
      <source>Document Templates</source>
      <translation>Dokumentvorlagen</translation>
    </message>
    <message>
      <source>A new template takes over</source>
      <translation>Eine neue Vorlage übernimmt</translation>
    </message>
    <message>
      <source>Save Current as Template…</source>
      <translation>Aktuelles Dokument als Vorlage speichern …</translation>
    </message>
    <message>
      <source>Save as Template</source>
      <translation>Als Vorlage speichern</translation>
    </message>
    <message>
      <source>Name of the template:</source>
      <translation>Name der Vorlage:</translation>
    </message>
    <message>
      <source>Payment terms, validity</source>
      <translation>Zahlungsbedingungen, Gültigkeit</translation>
    </message>
    <message>
      <source>Closing words, bank details</source>
      <translation>Grußformel, Bankverbindung</translation>
    </message>
    <message>
      <source>Private notes:</source>
      <translation>Private Notizen:</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>Wird nicht gedruckt</translation>
    </message>
    <message>
      <source>It holds no keyed archive.</source>
      <translation>Sie enthält kein Schlüsselarchiv.</translation>
    </message>
    <message>
      <source>Its root object is empty.</source>
      <translation>Ihr Wurzelobjekt ist leer.</translation>
    </message>
    <message>
      <source>It holds %1 where an object reference belongs.</source>
      <translation>Sie enthält %1, wo ein Objektverweis hingehört.</translation>
    </message>
    <message>
      <source>It refers to object %1 of %2.</source>
      <translation>Sie verweist auf Objekt %1 von %2.</translation>
    </message>
    <message>
      <source>Its objects unfold far beyond the size of the file.</source>
      <translation>Ihre Objekte entfalten sich weit über die Größe der Datei hinaus.</translation>
    </message>
    <message>
      <source>Its objects nest too deeply.</source>
      <translation>Ihre Objekte sind zu tief verschachtelt.</translation>
    </message>
    <message>
      <source>A date lies too far from today.</source>
      <translation>Ein Datum liegt zu weit vom heutigen Tag entfernt.</translation>
    </message>
    <message>
      <source>Object %1 is %2.</source>
      <translation>Objekt %1 ist %2.</translation>
    </message>
    <message>
      <source>Object %1 contains itself.</source>
      <translation>Objekt %1 enthält sich selbst.</translation>
    </message>
    <message>
      <source>A data object holds no bytes.</source>
      <translation>Ein Datenobjekt enthält keine Bytes.</translation>
    </message>
    <message>
      <source>It holds an object of class “%1”, which Tamo does not read.</source>
      <translation>Sie enthält ein Objekt der Klasse „%1“, das Tamo nicht liest.</translation>
    </message>
    <message>
      <source>A dictionary has no matching keys and values.</source>
      <translation>Ein Verzeichnis hat keine zueinander passenden Schlüssel und Werte.</translation>
    </message>
    <message>
      <source>A dictionary has a key that is not text.</source>
      <translation>Ein Verzeichnis hat einen Schlüssel, der kein Text ist.</translation>
    </message>
    <message>
      <source>A list has no members.</source>
      <translation>Eine Liste hat keine Elemente.</translation>
    </message>
    <message>
      <source>A text object holds no text.</source>
      <translation>Ein Textobjekt enthält keinen Text.</translation>
    </message>
    <message>
      <source>A date holds no time.</source>
      <translation>Ein Datum enthält keine Zeit.</translation>
    </message>
    <message>
      <source>A decimal number is malformed.</source>
      <translation>Eine Dezimalzahl ist fehlerhaft.</translation>
    </message>
    <message>
      <source>Preferences</source>
      <translation>Einstellungen</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Unternehmen</translation>
    </message>
    <message>
      <source>Design</source>
      <translation>Design</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>Vorlage</translation>
    </message>
    <message>
      <source>Data</source>
      <translation>Daten</translation>
    </message>
    <message>
      <source>Region and Output</source>
      <translation>Region und Ausgabe</translation>
    </message>
    <message>
      <source>The file does not hold a Tamo database alone.</source>
      <translation>Die Datei enthält nicht allein eine Tamo-Datenbank.</translation>
    </message>
    <message>
      <source>Its table “%1” has a column “%2” that Tamo does not make.</source>
      <translation>Ihre Tabelle „%1“ hat eine Spalte „%2“, die Tamo nicht anlegt.</translation>
    </message>
    <message>
      <source>Its table “%1” is not defined as Tamo defines it.</source>
      <translation>Ihre Tabelle „%1“ ist nicht so definiert, wie Tamo sie definiert.</translation>
    </message>
    <message>
      <source>Its table “meta” is not defined as Tamo defines it.</source>
      <translation>Ihre Tabelle „meta“ ist nicht so definiert, wie Tamo sie definiert.</translation>
    </message>
    <message>
      <source>a trigger</source>
      <translation>einen Trigger</translation>
    </message>
    <message>
      <source>a view</source>
      <translation>eine Sicht</translation>
    </message>
    <message>
      <source>an index</source>
      <translation>einen Index</translation>
    </message>
    <message>
      <source>a table</source>
      <translation>eine Tabelle</translation>
    </message>
    <message>
      <source>It holds %1 “%2”, which a Tamo database never has.</source>
      <translation>Sie enthält %1 „%2“, was eine Tamo-Datenbank nie hat.</translation>
    </message>
    <message>
      <source>SQLite gave no result.</source>
      <translation>SQLite hat kein Ergebnis geliefert.</translation>
    </message>
    <message>
      <source>%1 is taxed at the %2 with a rate of 0: give the tax a rate, or leave the tax off.</source>
      <translation>%1 wird nach der Kategorie „%2“ mit einem Satz von 0 besteuert: Geben Sie der Steuer einen Satz, oder lassen Sie die Steuer weg.</translation>
    </message>
    <message>
      <source>%1 is %2 and needs a rate of 0.</source>
      <translation>%1 fällt unter die Kategorie „%2“ und benötigt einen Satz von 0.</translation>
    </message>
    <message>
      <source>%1 is %2 and may not give a rate.</source>
      <translation>%1 fällt unter die Kategorie „%2“ und darf keinen Satz angeben.</translation>
    </message>
    <message>
      <source>Items are taxed at the %1, but the tax breakdown has no subtotal for it.</source>
      <translation>Posten werden nach der Kategorie „%1“ besteuert, aber die Steueraufschlüsselung enthält dafür keine Zwischensumme.</translation>
    </message>
    <message>
      <source>The tax breakdown has a subtotal at the %1 that no line, allowance or charge uses.</source>
      <translation>Die Steueraufschlüsselung enthält eine Zwischensumme der Kategorie „%1“, die von keiner Position, keinem Abschlag und keinem Zuschlag verwendet wird.</translation>
    </message>
    <message>
      <source>Items %1 need exactly one subtotal in the tax breakdown; it has %2.</source>
      <translation>Posten der Kategorie „%1“ benötigen genau eine Zwischensumme in der Steueraufschlüsselung; sie enthält %2.</translation>
    </message>
    <message>
      <source>The taxable amount of the subtotal “%1” (%2) is not the sum of its lines, less allowances and plus charges (%3).</source>
      <translation>Der steuerpflichtige Betrag der Zwischensumme „%1“ (%2) ist nicht die Summe ihrer Positionen abzüglich Abschlägen und zuzüglich Zuschlägen (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal at %1 % (%2) is not its taxable amount times the rate (%3).</source>
      <translation>Die Steuer der Zwischensumme zu %1 % (%2) ist nicht ihr steuerpflichtiger Betrag mal Steuersatz (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal “%1” must be 0.</source>
      <translation>Die Steuer der Zwischensumme „%1“ muss 0 sein.</translation>
    </message>
    <message>
      <source>Items %1 need the reason of the exemption in the tax breakdown: enter it on the e-invoice sheet (for example the law that exempts them).</source>
      <translation>Posten der Kategorie „%1“ benötigen den Befreiungsgrund in der Steueraufschlüsselung: Geben Sie ihn im E-Rechnungsdialog ein (zum Beispiel das Gesetz, nach dem sie befreit sind).</translation>
    </message>
    <message>
      <source>The subtotal “%1” may not give an exemption reason.</source>
      <translation>Die Zwischensumme „%1“ darf keinen Befreiungsgrund angeben.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the delivery date.</source>
      <translation>Innergemeinschaftliche Lieferungen benötigen das Lieferdatum.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the country they are delivered to.</source>
      <translation>Innergemeinschaftliche Lieferungen benötigen das Land, in das geliefert wird.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no other subtotal in its tax breakdown.</source>
      <translation>Eine nicht umsatzsteuerbare Rechnung darf keine weitere Zwischensumme in ihrer Steueraufschlüsselung haben.</translation>
    </message>
    <message>
      <source>in memory</source>
      <translation>im Arbeitsspeicher</translation>
    </message>
    <message>
      <source>It may only be read.</source>
      <translation>Er darf nur gelesen werden.</translation>
    </message>
    <message>
      <source>The file is damaged.</source>
      <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
      <source>It is not a database.</source>
      <translation>Sie ist keine Datenbank.</translation>
    </message>
    <message>
      <source>Another program is using it.</source>
      <translation>Ein anderes Programm verwendet sie.</translation>
    </message>
    <message>
      <source>There is not enough memory.</source>
      <translation>Es ist nicht genug Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
      <source>The store “%1” could not be changed.</source>
      <translation>Der Datenbestand „%1“ konnte nicht geändert werden.</translation>
    </message>
    <message>
      <source>The store “%1” could not be written.</source>
      <translation>Der Datenbestand „%1“ konnte nicht geschrieben werden.</translation>
    </message>
  </context>
</TS>
