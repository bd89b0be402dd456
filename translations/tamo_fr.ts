<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
  <context>
    <name>Tamo</name>
    <message>
      <source>Edit Number</source>
      <translation>Modification du numéro</translation>
    </message>
    <message>
      <source>Edit Title</source>
      <translation>Modification du titre</translation>
    </message>
    <message>
      <source>Edit Subject</source>
      <translation>Modification de l'objet</translation>
    </message>
    <message>
      <source>Edit Date</source>
      <translation>Modification de la date</translation>
    </message>
    <message>
      <source>Edit Due Date</source>
      <translation>Modification de l'échéance</translation>
    </message>
    <message>
      <source>Change Status</source>
      <translation>Changement de statut</translation>
    </message>
    <message>
      <source>Edit Paid Amount</source>
      <translation>Modification du montant payé</translation>
    </message>
    <message>
      <source>Edit Payment Date</source>
      <translation>Modification de la date de paiement</translation>
    </message>
    <message>
      <source>Mark Dispatched</source>
      <translation>Marquage comme expédié</translation>
    </message>
    <message>
      <source>Edit Delivery Note Number</source>
      <translation>Modification du numéro de bon de livraison</translation>
    </message>
    <message>
      <source>Edit Delivery Date</source>
      <translation>Modification de la date de livraison</translation>
    </message>
    <message>
      <source>Edit Conditions</source>
      <translation>Modification des conditions</translation>
    </message>
    <message>
      <source>Edit Further Text</source>
      <translation>Modification du texte complémentaire</translation>
    </message>
    <message>
      <source>Edit Footer</source>
      <translation>Modification du pied de page</translation>
    </message>
    <message>
      <source>Edit Notes</source>
      <translation>Modification des notes</translation>
    </message>
    <message>
      <source>Edit Client Name</source>
      <translation>Modification du nom du client</translation>
    </message>
    <message>
      <source>Edit Client Title</source>
      <translation>Modification de la civilité du client</translation>
    </message>
    <message>
      <source>Edit Client Number</source>
      <translation>Modification du numéro client</translation>
    </message>
    <message>
      <source>Edit VAT ID</source>
      <translation>Modification du n° de TVA</translation>
    </message>
    <message>
      <source>Edit E-mail Address</source>
      <translation>Modification de l'adresse e-mail</translation>
    </message>
    <message>
      <source>Edit Address</source>
      <translation>Modification de l'adresse</translation>
    </message>
    <message>
      <source>Charge Shipping</source>
      <translation>Facturation des frais de port</translation>
    </message>
    <message>
      <source>Edit Shipping Title</source>
      <translation>Modification du titre des frais de port</translation>
    </message>
    <message>
      <source>Edit Shipping Subtitle</source>
      <translation>Modification du sous-titre des frais de port</translation>
    </message>
    <message>
      <source>Show Shipping Subtitle</source>
      <translation>Affichage du sous-titre des frais de port</translation>
    </message>
    <message>
      <source>Edit Shipping Amount</source>
      <translation>Modification du montant des frais de port</translation>
    </message>
    <message>
      <source>Tax Shipping</source>
      <translation>Application de la taxe aux frais de port</translation>
    </message>
    <message>
      <source>Grant Discount</source>
      <translation>Octroi d'une remise</translation>
    </message>
    <message>
      <source>Edit Discount Title</source>
      <translation>Modification du titre de la remise</translation>
    </message>
    <message>
      <source>Edit Discount Subtitle</source>
      <translation>Modification du sous-titre de la remise</translation>
    </message>
    <message>
      <source>Show Discount Subtitle</source>
      <translation>Affichage du sous-titre de la remise</translation>
    </message>
    <message>
      <source>Change Discount Kind</source>
      <translation>Changement du type de remise</translation>
    </message>
    <message>
      <source>Edit Discount Amount</source>
      <translation>Modification du montant de la remise</translation>
    </message>
    <message>
      <source>Edit Discount Percentage</source>
      <translation>Modification du pourcentage de remise</translation>
    </message>
    <message>
      <source>Edit E-Invoice Details</source>
      <translation>Modification des détails de la facture électronique</translation>
    </message>
    <message>
      <source>Client</source>
      <translation>Client</translation>
    </message>
    <message>
      <source>Title</source>
      <translation>Titre</translation>
    </message>
    <message>
      <source>Lines</source>
      <translation>Lignes</translation>
    </message>
    <message>
      <source>Shipping</source>
      <translation>Frais de port</translation>
    </message>
    <message>
      <source>Discount</source>
      <translation>Remise</translation>
    </message>
    <message>
      <source>Exempt from VAT</source>
      <translation>Exonéré de TVA</translation>
    </message>
    <message>
      <source>Reverse charge</source>
      <translation>Autoliquidation</translation>
    </message>
    <message>
      <source>Intra-community supply</source>
      <translation>Livraison intracommunautaire</translation>
    </message>
    <message>
      <source>Export outside the EU</source>
      <translation>Exportation hors UE</translation>
    </message>
    <message>
      <source>Not subject to VAT</source>
      <translation>Non soumis à la TVA</translation>
    </message>
    <message>
      <source>Zero rated</source>
      <translation>Taux zéro</translation>
    </message>
    <message>
      <source>Mark Invoice as Sent</source>
      <translation>Marquage de la facture comme envoyée</translation>
    </message>
    <message>
      <source>No document is selected.</source>
      <translation>Aucun document n'est sélectionné.</translation>
    </message>
    <message>
      <source>The conformant file asks for %1, while the document shows %2: the rules levy each tax on the amount after the discount at each line's own rate and round each tax subtotal once, which the document's totals do not.</source>
      <translation>Le fichier conforme indique %1, alors que le document affiche %2 : les règles appliquent chaque taxe au montant après remise, au taux propre à chaque ligne, et n'arrondissent qu'une fois chaque sous-total de taxe, ce que ne font pas les totaux du document.</translation>
    </message>
    <message>
      <source>It breaks a rule the recipient's validator checks:</source>
      <translation>Elle enfreint une règle vérifiée par le validateur du destinataire :</translation>
    </message>
    <message>
      <source>It breaks %1 rules the recipient's validator checks, the first:</source>
      <translation>Elle enfreint %1 règles vérifiées par le validateur du destinataire, dont la première :</translation>
    </message>
    <message>
      <source>This e-invoice will likely be rejected</source>
      <translation>Cette facture électronique sera probablement rejetée</translation>
    </message>
    <message>
      <source>Export it anyway?</source>
      <translation>L'exporter quand même ?</translation>
    </message>
    <message>
      <source>Export Anyway</source>
      <translation>Exporter quand même</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Annuler</translation>
    </message>
    <message>
      <source>Error!</source>
      <translation>Erreur !</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>OK</translation>
    </message>
    <message>
      <source>The e-invoice could not be saved at %1.</source>
      <translation>Impossible d'enregistrer la facture électronique dans %1.</translation>
    </message>
    <message>
      <source>Save E-Invoice XML File</source>
      <translation>Enregistrer le fichier XML de la facture électronique</translation>
    </message>
    <message>
      <source>Choose a location to save your E-Invoice XML file.</source>
      <translation>Choisissez l'emplacement où enregistrer le fichier XML de votre facture électronique.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the discount as a line with a negative price and no tax category.</source>
      <translation>La facture électronique standard de Tamo inscrit la remise comme une ligne à prix négatif sans catégorie de taxe.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line without taxes with no tax category.</source>
      <translation>La facture électronique standard de Tamo inscrit une ligne sans taxe sans catégorie de taxe.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line with a negative price as it is; the conformant file writes a negative quantity at a positive price.</source>
      <translation>La facture électronique standard de Tamo inscrit telle quelle une ligne à prix négatif ; le fichier conforme inscrit une quantité négative à un prix positif.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice leaves the discount line out of the sum of the lines.</source>
      <translation>La facture électronique standard de Tamo omet la ligne de remise dans la somme des lignes.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice counts the shipping twice in the total without tax when there is a discount.</source>
      <translation>La facture électronique standard de Tamo compte deux fois les frais de port dans le total hors taxe lorsqu'il y a une remise.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds the discount back into the total with tax.</source>
      <translation>La facture électronique standard de Tamo réintègre la remise dans le total toutes taxes comprises.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the discount off the first tax's taxable amount only, while the tax was levied on the amount before the discount.</source>
      <translation>La facture électronique standard de Tamo ne déduit la remise que de la base imposable de la première taxe, alors que la taxe a été calculée sur le montant avant remise.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's tax sums as the document stores them, one subtotal per tax at the document's rate.</source>
      <translation>La facture électronique standard de Tamo inscrit les sommes de taxe telles que le document les enregistre, un sous-total par taxe au taux du document.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's totals as the document stores and rounds them.</source>
      <translation>La facture électronique standard de Tamo inscrit les totaux tels que le document les enregistre et les arrondit.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds every tax into the tax total but writes subtotals only for taxes above zero.</source>
      <translation>La facture électronique standard de Tamo additionne toutes les taxes dans le total des taxes, mais n'inscrit de sous-totaux que pour les taxes supérieures à zéro.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a document without taxes as one zero-rated subtotal over lines that carry no tax category.</source>
      <translation>La facture électronique standard de Tamo inscrit un document sans taxe comme un unique sous-total à taux zéro sur des lignes sans catégorie de taxe.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the document's currency from Preferences → Company (prefsSupplierCurrency) and every amount's currency from the E-Invoice Details (evoiceCurrency); make them the same.</source>
      <translation>La facture électronique standard de Tamo prend la devise du document dans Préférences → Entreprise (prefsSupplierCurrency) et celle de chaque montant dans les Détails de la facture électronique (evoiceCurrency) ; rendez-les identiques.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes quantities and prices with two decimals, while the document calculates with three.</source>
      <translation>La facture électronique standard de Tamo inscrit les quantités et les prix avec deux décimales, alors que le document calcule avec trois.</translation>
    </message>
    <message>
      <source>Mail Address</source>
      <translation>Adresse e-mail</translation>
    </message>
    <message>
      <source>Legal Name</source>
      <translation>Raison sociale</translation>
    </message>
    <message>
      <source>VAT ID</source>
      <translation>N° de TVA</translation>
    </message>
    <message>
      <source>Currency</source>
      <translation>Devise</translation>
    </message>
    <message>
      <source>Tax Scheme</source>
      <translation>Régime de taxe</translation>
    </message>
    <message>
      <source>Country Code</source>
      <translation>Code pays</translation>
    </message>
    <message>
      <source>Street</source>
      <translation>Rue</translation>
    </message>
    <message>
      <source>Postal Code</source>
      <translation>Code postal</translation>
    </message>
    <message>
      <source>City</source>
      <translation>Ville</translation>
    </message>
    <message>
      <source>Contact</source>
      <translation>Contact</translation>
    </message>
    <message>
      <source>standard rate</source>
      <translation>taux normal</translation>
    </message>
    <message>
      <source>zero rated</source>
      <translation>taux zéro</translation>
    </message>
    <message>
      <source>exempt from VAT</source>
      <translation>exonéré de TVA</translation>
    </message>
    <message>
      <source>reverse charge</source>
      <translation>autoliquidation</translation>
    </message>
    <message>
      <source>intra-community supply</source>
      <translation>livraison intracommunautaire</translation>
    </message>
    <message>
      <source>export outside the EU</source>
      <translation>exportation hors UE</translation>
    </message>
    <message>
      <source>not subject to VAT</source>
      <translation>non soumis à la TVA</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number.</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent votre n° de TVA ou votre numéro fiscal.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number and the client's VAT identifier.</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent votre n° de TVA ou votre numéro fiscal, ainsi que le n° de TVA du client.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier and the client's, both under the tax scheme VAT.</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent votre n° de TVA et celui du client, tous deux sous le régime de taxe VAT.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier under the tax scheme VAT.</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent votre n° de TVA sous le régime de taxe VAT.</translation>
    </message>
    <message>
      <source>Items %1 may not name your VAT identifier or the client's: choose another exemption category, or use this one only when nothing on the document is taxed.</source>
      <translation>Les éléments de la catégorie « %1 » ne doivent mentionner ni votre n° de TVA ni celui du client : choisissez une autre catégorie d'exonération, ou n'utilisez celle-ci que si rien n'est taxé sur le document.</translation>
    </message>
    <message>
      <source>Line %1</source>
      <translation>Ligne %1</translation>
    </message>
    <message>
      <source>The allowance</source>
      <translation>La remise</translation>
    </message>
    <message>
      <source>The charge</source>
      <translation>La majoration</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no taxed line.</source>
      <translation>Une facture non soumise à la TVA ne peut comporter aucune ligne taxée.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no allowance in another tax category.</source>
      <translation>Une facture non soumise à la TVA ne peut comporter aucune remise dans une autre catégorie de taxe.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no charge in another tax category.</source>
      <translation>Une facture non soumise à la TVA ne peut comporter aucune majoration dans une autre catégorie de taxe.</translation>
    </message>
    <message>
      <source>Your company's legal name is missing.</source>
      <translation>La raison sociale de votre entreprise est manquante.</translation>
    </message>
    <message>
      <source>Your company's country code is missing.</source>
      <translation>Le code pays de votre entreprise est manquant.</translation>
    </message>
    <message>
      <source>Your company's city is missing.</source>
      <translation>La ville de votre entreprise est manquante.</translation>
    </message>
    <message>
      <source>Your company's postal code is missing.</source>
      <translation>Le code postal de votre entreprise est manquant.</translation>
    </message>
    <message>
      <source>Your company's contact person is missing.</source>
      <translation>La personne de contact de votre entreprise est manquante.</translation>
    </message>
    <message>
      <source>Your company's phone number is missing.</source>
      <translation>Le numéro de téléphone de votre entreprise est manquant.</translation>
    </message>
    <message>
      <source>Your company's e-mail address is missing.</source>
      <translation>L'adresse e-mail de votre entreprise est manquante.</translation>
    </message>
    <message>
      <source>The client's legal name is missing.</source>
      <translation>La raison sociale du client est manquante.</translation>
    </message>
    <message>
      <source>The client's country code is missing.</source>
      <translation>Le code pays du client est manquant.</translation>
    </message>
    <message>
      <source>The client's city is missing.</source>
      <translation>La ville du client est manquante.</translation>
    </message>
    <message>
      <source>The client's postal code is missing.</source>
      <translation>Le code postal du client est manquant.</translation>
    </message>
    <message>
      <source>The place of delivery has no city.</source>
      <translation>Le lieu de livraison n'a pas de ville.</translation>
    </message>
    <message>
      <source>The place of delivery has no postal code.</source>
      <translation>Le lieu de livraison n'a pas de code postal.</translation>
    </message>
    <message>
      <source>The total of the allowances (%1) is not their sum (%2).</source>
      <translation>Le total des remises (%1) ne correspond pas à leur somme (%2).</translation>
    </message>
    <message>
      <source>The total of the charges (%1) is not their sum (%2).</source>
      <translation>Le total des majorations (%1) ne correspond pas à leur somme (%2).</translation>
    </message>
    <message>
      <source>Tamo files (%1)</source>
      <translation>Fichiers Tamo (%1)</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Imprimer</translation>
    </message>
    <message>
      <source>Show the subtitle</source>
      <translation>Afficher le sous-titre</translation>
    </message>
    <message>
      <source>Edit %1 Title</source>
      <translation>Modification du titre (%1)</translation>
    </message>
    <message>
      <source>Edit %1 Subtitle</source>
      <translation>Modification du sous-titre (%1)</translation>
    </message>
    <message>
      <source>Show %1 Subtitle</source>
      <translation>Affichage du sous-titre (%1)</translation>
    </message>
    <message>
      <source>Title:</source>
      <translation>Titre :</translation>
    </message>
    <message>
      <source>Subtitle:</source>
      <translation>Sous-titre :</translation>
    </message>
    <message>
      <source>Done</source>
      <translation>Terminé</translation>
    </message>
    <message>
      <source>Backup</source>
      <translation>Sauvegarde</translation>
    </message>
    <message>
      <source>Restore</source>
      <translation>Restaurer</translation>
    </message>
    <message>
      <source>Hint!</source>
      <translation>Astuce !</translation>
    </message>
    <message>
      <source>The manual is not installed with this copy of Tamo.</source>
      <translation>Le manuel n'est pas installé avec cet exemplaire de Tamo.</translation>
    </message>
    <message>
      <source>No program could open the manual (%1). Please install a web browser.</source>
      <translation>Aucun programme n'a pu ouvrir le manuel (%1). Veuillez installer un navigateur web.</translation>
    </message>
    <message>
      <source>About Tamo</source>
      <translation>À propos de Tamo</translation>
    </message>
    <message>
      <source>Invoices, quotes and e-invoices for freelancers and small businesses.</source>
      <translation>Factures, devis et factures électroniques pour indépendants et petites entreprises.</translation>
    </message>
    <message>
      <source>&lt;p&gt;Copyright © 2026 The Tamo developers.&lt;/p&gt;&lt;p&gt;Tamo is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or (at your option) any later version. It comes with ABSOLUTELY NO WARRANTY.&lt;/p&gt;</source>
      <translation>&lt;p&gt;Copyright © 2026 Les développeurs de Tamo.&lt;/p&gt;&lt;p&gt;Tamo est un logiciel libre : vous pouvez le redistribuer et le modifier selon les termes de la Licence publique générale GNU, version 3 ou (à votre choix) toute version ultérieure. Il est fourni SANS AUCUNE GARANTIE.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>&amp;Help</source>
      <translation>Aid&amp;e</translation>
    </message>
    <message>
      <source>Tamo &amp;Manual</source>
      <translation>&amp;Manuel de Tamo</translation>
    </message>
    <message>
      <source>&amp;About Tamo</source>
      <translation>À &amp;propos de Tamo</translation>
    </message>
    <message>
      <source>About &amp;Qt</source>
      <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
      <source>Quote</source>
      <translation>Devis</translation>
    </message>
    <message>
      <source>Sent</source>
      <translation>Envoyée</translation>
    </message>
    <message>
      <source>Overdue</source>
      <translation>En retard</translation>
    </message>
    <message>
      <source>Paid</source>
      <translation>Payée</translation>
    </message>
    <message>
      <source>Partially paid</source>
      <translation>Partiellement payée</translation>
    </message>
    <message>
      <source>Created</source>
      <translation>Créée</translation>
    </message>
    <message>
      <source>Import Tamo Document…</source>
      <translation>Importer un document Tamo…</translation>
    </message>
    <message>
      <source>Export As Invoices Dump…</source>
      <translation>Exporter en fichier de factures…</translation>
    </message>
    <message>
      <source>Export Database As XML…</source>
      <translation>Exporter la base de données en XML…</translation>
    </message>
    <message>
      <source>Export Listed Invoices As XML…</source>
      <translation>Exporter les factures affichées en XML…</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices…</source>
      <translation>Sauvegarder les factures Tamo…</translation>
    </message>
    <message>
      <source>Backup Tamo Items…</source>
      <translation>Sauvegarder les articles Tamo…</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database…</source>
      <translation>Sauvegarder la base de données E-Tamo…</translation>
    </message>
    <message>
      <source>Backup Raw Database…</source>
      <translation>Sauvegarder la base de données brute…</translation>
    </message>
    <message>
      <source>Write Safety Copy Now</source>
      <translation>Créer une copie de sécurité maintenant</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices…</source>
      <translation>Restaurer les factures Tamo…</translation>
    </message>
    <message>
      <source>Restore Tamo Items…</source>
      <translation>Restaurer les articles Tamo…</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database…</source>
      <translation>Restaurer la base de données E-Tamo…</translation>
    </message>
    <message>
      <source>Restore Raw Database…</source>
      <translation>Restaurer la base de données brute…</translation>
    </message>
    <message>
      <source>Restore from Safety Copy…</source>
      <translation>Restaurer depuis la copie de sécurité…</translation>
    </message>
    <message>
      <source>Move Data from the Flatpak Edition…</source>
      <translation>Reprendre les données de l’édition Flatpak…</translation>
    </message>
    <message>
      <source>Recover Previous Database…</source>
      <translation>Récupérer une base de données précédente…</translation>
    </message>
    <message>
      <source>the listed documents, newest first</source>
      <translation>les documents affichés, les plus récents d’abord</translation>
    </message>
    <message>
      <source>list --changed: what differs from the starting values of the language set up</source>
      <translation>list --changed : ce qui diffère des valeurs de départ de la langue configurée</translation>
    </message>
    <message>
      <source>the starting values of a language, as the setup assistant's first page applies them</source>
      <translation>les valeurs de départ d’une langue, comme les applique la première page de l’assistant de configuration</translation>
    </message>
    <message>
      <source>recalculates every document and prints the sums</source>
      <translation>recalcule tous les documents et affiche les sommes</translation>
    </message>
    <message>
      <source>XML property list, .tamoinvoices</source>
      <translation>liste de propriétés XML, .tamoinvoices</translation>
    </message>
    <message>
      <source>XML property list, .tamoitems</source>
      <translation>liste de propriétés XML, .tamoitems</translation>
    </message>
    <message>
      <source>every invoice</source>
      <translation>toutes les factures</translation>
    </message>
    <message>
      <source>the listed invoices</source>
      <translation>les factures affichées</translation>
    </message>
    <message>
      <source>the store file, .tamo2db</source>
      <translation>le fichier de la base, .tamo2db</translation>
    </message>
    <message>
      <source>keyed archive of every invoice, .invdump</source>
      <translation>archive à clés de toutes les factures, .invdump</translation>
    </message>
    <message>
      <source>a document file, .tamo</source>
      <translation>un fichier de document, .tamo</translation>
    </message>
    <message>
      <source>a raw store copy, .sqlite</source>
      <translation>une copie brute de la base, .sqlite</translation>
    </message>
    <message>
      <source>a complete backup (default: the documents folder), then the store moves to DIR</source>
      <translation>une sauvegarde complète (par défaut : le dossier Documents), puis la base est déplacée dans DIR</translation>
    </message>
    <message>
      <source>without COPY: lists the recovery copies; COPY is a copy's number, file name or path</source>
      <translation>sans COPY : liste les copies de récupération ; COPY est le numéro, le nom de fichier ou le chemin d’une copie</translation>
    </message>
    <message>
      <source>answers as when the desktop opens a file: a design is offered for import</source>
      <translation>répond comme lorsque le bureau ouvre un fichier : une mise en page est proposée à l’importation</translation>
    </message>
    <message>
      <source>a quote into an invoice</source>
      <translation>un devis en facture</translation>
    </message>
    <message>
      <source>STATUS: 0 created, 1 sent, 3 paid, 4 partially paid (overdue follows from the due date)</source>
      <translation>STATUS : 0 créée, 1 envoyée, 3 payée, 4 partiellement payée (le retard découle de l’échéance)</translation>
    </message>
    <message>
      <source>0 all, 1 open, 2 overdue, 3 paid, 4 quotes, 5-8 recent</source>
      <translation>0 tous, 1 ouverts, 2 en retard, 3 payés, 4 devis, 5-8 récents</translation>
    </message>
    <message>
      <source>I counts from 0</source>
      <translation>I compte à partir de 0</translation>
    </message>
    <message>
      <source>the fields the editor shows: title, subject, date, due, texts, client, shipping, discount, e-invoice buyer; dates as 2026-03-05, percentages as 10</source>
      <translation>les champs que montre l’éditeur : titre, objet, date, échéance, textes, client, livraison, remise, acheteur de la facture électronique ; dates comme 2026-03-05, pourcentages comme 10</translation>
    </message>
    <message>
      <source>the document's lines, numbered as edit-line and delete-line take them</source>
      <translation>les lignes du document, numérotées comme edit-line et delete-line les attendent</translation>
    </message>
    <message>
      <source>KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes or no)</source>
      <translation>KEY : title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes ou no)</translation>
    </message>
    <message>
      <source>XRechnung XML of document N, after the readiness check; --conformant writes the file the EN 16931 rules require (default: setting prefsEvoiceConformantBool)</source>
      <translation>XML XRechnung du document N, après la vérification préalable ; --conformant écrit le fichier qu’exigent les règles EN 16931 (par défaut : réglage prefsEvoiceConformantBool)</translation>
    </message>
    <message>
      <source>readiness, then the EN 16931 and XRechnung rules; exit 0 only when nothing fatal remains</source>
      <translation>vérification préalable, puis les règles EN 16931 et XRechnung ; code de sortie 0 seulement s’il ne reste rien de bloquant</translation>
    </message>
    <message>
      <source>every listed document, DIR/NUMBER_N.pdf</source>
      <translation>tous les documents affichés, DIR/NUMBER_N.pdf</translation>
    </message>
    <message>
      <source>the sales report of the listed invoices; DATE is 2026-03-01 or 2026-03-01T12:00</source>
      <translation>le rapport des ventes des factures affichées ; DATE est 2026-03-01 ou 2026-03-01T12:00</translation>
    </message>
    <message>
      <source>every listed document, oldest first, as PDF</source>
      <translation>tous les documents affichés, les plus anciens d’abord, en PDF</translation>
    </message>
    <message>
      <source>prints document N on the default printer or NAME; marks an invoice as sent when markInvoiceAsSent is on</source>
      <translation>imprime le document N sur l’imprimante par défaut ou sur NAME ; marque une facture comme envoyée si markInvoiceAsSent est activé</translation>
    </message>
    <message>
      <source>document N as PDF file; marks an invoice as sent as print does</source>
      <translation>le document N en fichier PDF ; marque une facture comme envoyée comme le fait print</translation>
    </message>
    <message>
      <source>a new message in the mail client (xdg-email) with the PDF, or with the e-invoice after its checks; marks an invoice as sent as print does</source>
      <translation>un nouveau message dans le client de messagerie (xdg-email) avec le PDF, ou avec la facture électronique après ses vérifications ; marque une facture comme envoyée comme le fait print</translation>
    </message>
    <message>
      <source>document file that import-document reads (.tamo), or its XML property list</source>
      <translation>fichier de document que lit import-document (.tamo), ou sa liste de propriétés XML</translation>
    </message>
    <message>
      <source>the invoices of the range (default: every listed one) as kelvaneExport.ldxtamo or .kelvtamo, handed to the desktop; kind 0 every sent invoice, 1 paid, 2 overdue; --items keeps each invoice's lines instead of one summary; prints the file's path</source>
      <translation>les factures de la période (par défaut : toutes celles affichées) en kelvaneExport.ldxtamo ou .kelvtamo, transmises au bureau ; kind 0 toutes les factures envoyées, 1 payées, 2 en retard ; --items garde les lignes de chaque facture au lieu d’un résumé ; affiche le chemin du fichier</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to 'Created' first. Then you will also be able to resend the modified invoice.</source>
      <translation>La facture sélectionnée est marquée comme déjà envoyée. Si vous devez vraiment la modifier, remettez d’abord son statut à « Créée ». Vous pourrez alors aussi renvoyer la facture modifiée.</translation>
    </message>
    <message>
      <source>This feature is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
      <translation>Cette fonction suit les factures affichées dans la fenêtre principale de Tamo. Vous pouvez ainsi, par exemple, rechercher un client pour n’imprimer le livre de comptes que pour ce client, ou filtrer d’abord vos factures pour ne l’imprimer que pour les factures payées ou en retard.</translation>
    </message>
    <message>
      <source>“%1” is not a number Tamo can calculate with.</source>
      <translation>« %1 » n’est pas un nombre avec lequel Tamo peut calculer.</translation>
    </message>
    <message>
      <source>%1 is too large: Tamo takes amounts of at most %2.</source>
      <translation>%1 est trop grand : Tamo accepte des montants d’au plus %2.</translation>
    </message>
    <message>
      <source>The line comes to %1, which is too large: Tamo takes amounts of at most %2.</source>
      <translation>La ligne s’élève à %1, ce qui est trop grand : Tamo accepte des montants d’au plus %2.</translation>
    </message>
    <message>
      <source>“%1” is not a number.</source>
      <translation>« %1 » n’est pas un nombre.</translation>
    </message>
    <message>
      <source>“%1” is not a percentage.</source>
      <translation>« %1 » n’est pas un pourcentage.</translation>
    </message>
    <message>
      <source>A rate cannot be negative (“%1”).</source>
      <translation>Un taux ne peut pas être négatif (« %1 »).</translation>
    </message>
    <message>
      <source>A rate is at most 100 % (“%1”).</source>
      <translation>Un taux est d’au plus 100 % (« %1 »).</translation>
    </message>
    <message>
      <source>Invoices: %1 (%2 sent)</source>
      <translation>Factures : %1 (%2 envoyées)</translation>
    </message>
    <message>
      <source>Quotes: %1</source>
      <translation>Devis : %1</translation>
    </message>
    <message>
      <source>Total: %1</source>
      <translation>Total : %1</translation>
    </message>
    <message>
      <source>Paid: %1</source>
      <translation>Payé : %1</translation>
    </message>
    <message>
      <source>Due: %1</source>
      <translation>Dû : %1</translation>
    </message>
    <message>
      <source>Status</source>
      <translation>Statut</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>Numéro</translation>
    </message>
    <message>
      <source>Date</source>
      <translation>Date</translation>
    </message>
    <message>
      <source>Due</source>
      <translation>Dû</translation>
    </message>
    <message>
      <source>Amount</source>
      <translation>Montant</translation>
    </message>
    <message>
      <source>%1 needs a whole number</source>
      <translation>%1 attend un nombre entier</translation>
    </message>
    <message>
      <source>Generated %1 documents with %2 lines and %3 clients.</source>
      <translation>%1 documents avec %2 lignes et %3 clients générés.</translation>
    </message>
    <message>
      <source>--store needs a folder</source>
      <translation>--store attend un dossier</translation>
    </message>
    <message>
      <source>usage: tamo %1</source>
      <translation>utilisation : tamo %1</translation>
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
      <translation>  Sans commande, ouvre la fenêtre (ou met au premier plan celle ouverte sur la base).
  Les options peuvent figurer n’importe où ; « -- » les termine.
  tamo [--store DIR] tamo://…  transmet une requête à la fenêtre, ou y répond sans elle
  tamo [--store DIR] FILE      demande à la fenêtre d’ouvrir FILE, comme le fait le bureau
  --store DIR   garder la base, les réglages et les fichiers de données dans DIR
  --yes         répondre aux questions par leur bouton par défaut
  COMMAND --help, ou tamo help COMMAND, en dit plus sur une commande.
commandes :
</translation>
    </message>
    <message>
      <source>unknown command "%1"</source>
      <translation>commande inconnue « %1 »</translation>
    </message>
    <message>
      <source>the store “%1” may only be read: %2 “%3” would change it.</source>
      <translation>la base « %1 » ne peut qu’être lue : %2 « %3 » la modifierait.</translation>
    </message>
    <message>
      <source>nothing was exported</source>
      <translation>rien n’a été exporté</translation>
    </message>
    <message>
      <source>%1: nothing was written</source>
      <translation>%1 : rien n’a été écrit</translation>
    </message>
    <message>
      <source>the export failed</source>
      <translation>l’exportation a échoué</translation>
    </message>
    <message>
      <source>Printed %1</source>
      <translation>%1 imprimé</translation>
    </message>
    <message>
      <source>Wrote %1</source>
      <translation>%1 écrit</translation>
    </message>
    <message>
      <source>Handed %1 to the mail client</source>
      <translation>%1 transmis au client de messagerie</translation>
    </message>
    <message>
      <source>the e-invoice was not mailed</source>
      <translation>la facture électronique n’a pas été envoyée</translation>
    </message>
    <message>
      <source>quote</source>
      <translation>devis</translation>
    </message>
    <message>
      <source>invoice</source>
      <translation>facture</translation>
    </message>
    <message>
      <source>Created %1</source>
      <translation>%1 créé</translation>
    </message>
    <message>
      <source>Created %1 as a copy of %2</source>
      <translation>%1 créé comme copie de %2</translation>
    </message>
    <message>
      <source>%1 was not converted</source>
      <translation>%1 n’a pas été converti</translation>
    </message>
    <message>
      <source>Converted into %1</source>
      <translation>Converti en %1</translation>
    </message>
    <message>
      <source>Adjust Counter</source>
      <translation>Ajuster le compteur</translation>
    </message>
    <message>
      <source>%1 was not deleted</source>
      <translation>%1 n’a pas été supprimé</translation>
    </message>
    <message>
      <source>Deleted %1</source>
      <translation>%1 supprimé</translation>
    </message>
    <message>
      <source>the status is 0, 1, 3 or 4 (overdue follows from the due date), not %1</source>
      <translation>le statut est 0, 1, 3 ou 4 (le retard découle de l’échéance), pas %1</translation>
    </message>
    <message>
      <source>%1 needs a number such as 120.50</source>
      <translation>%1 attend un nombre tel que 120.50</translation>
    </message>
    <message>
      <source>Set Status</source>
      <translation>Définition du statut</translation>
    </message>
    <message>
      <source>%1: status %2</source>
      <translation>%1 : statut %2</translation>
    </message>
    <message>
      <source>%1: delivered %2</source>
      <translation>%1 : livré le %2</translation>
    </message>
    <message>
      <source>TAG is a number from 0 to 8</source>
      <translation>TAG est un nombre de 0 à 8</translation>
    </message>
    <message>
      <source>there is no document %1</source>
      <translation>il n’y a pas de document %1</translation>
    </message>
    <message>
      <source>%1 documents are numbered %2; name one by its uniqueID</source>
      <translation>%1 documents portent le numéro %2 ; désignez-en un par son uniqueID</translation>
    </message>
    <message>
      <source>text</source>
      <translation>un texte</translation>
    </message>
    <message>
      <source>date such as 2026-03-05</source>
      <translation>une date telle que 2026-03-05</translation>
    </message>
    <message>
      <source>amount such as 1234.50</source>
      <translation>un montant tel que 1234.50</translation>
    </message>
    <message>
      <source>percentage such as 10</source>
      <translation>un pourcentage tel que 10</translation>
    </message>
    <message>
      <source>yes or no</source>
      <translation>yes ou no</translation>
    </message>
    <message>
      <source>choice</source>
      <translation>un choix</translation>
    </message>
    <message>
      <source>%1: %2 is marked as already sent; set its status back to 0 (created) first</source>
      <translation>%1 : %2 est marqué comme déjà envoyé ; remettez d’abord son statut à 0 (créé)</translation>
    </message>
    <message>
      <source>%1 is not KEY=VALUE</source>
      <translation>%1 n’est pas de la forme KEY=VALUE</translation>
    </message>
    <message>
      <source>there is no field %1; the fields are %2</source>
      <translation>il n’y a pas de champ %1 ; les champs sont %2</translation>
    </message>
    <message>
      <source>%1 is not a %2 for %3</source>
      <translation>%1 n’est pas valable pour %3, il faut %2</translation>
    </message>
    <message>
      <source>%1: nothing changed</source>
      <translation>%1 : rien n’a changé</translation>
    </message>
    <message>
      <source>%1: changed %2; its total is now %3</source>
      <translation>%1 : %2 modifié ; le total est maintenant de %3</translation>
    </message>
    <message>
      <source>%1 has %2 lines; LINE counts them from 1 as `tamo lines` lists them</source>
      <translation>%1 a %2 lignes ; LINE les compte à partir de 1, comme les liste `tamo lines`</translation>
    </message>
    <message>
      <source>%1 is yes or no</source>
      <translation>%1 vaut yes ou no</translation>
    </message>
    <message>
      <source>there is no line field %1; the fields are title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</source>
      <translation>il n’y a pas de champ de ligne %1 ; les champs sont title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</translation>
    </message>
    <message>
      <source>Changed "%1" of %2; its total is now %3</source>
      <translation>« %1 » de %2 modifié ; le total est maintenant de %3</translation>
    </message>
    <message>
      <source>delete-line: "%1" was not deleted (questions are answered only with --yes)</source>
      <translation>delete-line : « %1 » n’a pas été supprimé (on ne répond aux questions qu’avec --yes)</translation>
    </message>
    <message>
      <source>Deleted "%1" from %2; its total is now %3</source>
      <translation>« %1 » supprimé de %2 ; le total est maintenant de %3</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; set its status back to Created to change or export it again</source>
      <translation>%1 est marqué comme déjà envoyé ; remettez son statut à « Créée » pour le modifier ou l’exporter à nouveau</translation>
    </message>
    <message>
      <source>possible</source>
      <translation>possible</translation>
    </message>
    <message>
      <source>not possible: %1</source>
      <translation>impossible : %1</translation>
    </message>
    <message>
      <source>fatal</source>
      <translation>bloquant</translation>
    </message>
    <message>
      <source>warning</source>
      <translation>avertissement</translation>
    </message>
    <message>
      <source>passes the EN 16931 and XRechnung rules</source>
      <translation>respecte les règles EN 16931 et XRechnung</translation>
    </message>
    <message numerus="yes">
      <source>%n fatal finding(s): the recipient's validator will likely reject the file</source>
      <translation>
        <numerusform>%n constat bloquant : le validateur du destinataire rejettera probablement le fichier</numerusform>
        <numerusform>%n constats bloquants : le validateur du destinataire rejettera probablement le fichier</numerusform>
      </translation>
    </message>
    <message>
      <source>Skipped the e-invoice readiness check (--force); the file may lack required values.</source>
      <translation>Vérification préalable de la facture électronique ignorée (--force) ; il peut manquer au fichier des valeurs obligatoires.</translation>
    </message>
    <message>
      <source>no e-invoice for %1: %2 (see einvoice-details, settings)</source>
      <translation>pas de facture électronique pour %1 : %2 (voir einvoice-details, settings)</translation>
    </message>
    <message>
      <source>no conformant e-invoice for %1: %2</source>
      <translation>pas de facture électronique conforme pour %1 : %2</translation>
    </message>
    <message>
      <source>Warning: this e-invoice will likely be rejected: it breaks rules the recipient's validator checks (see einvoice-check %1).</source>
      <translation>Attention : cette facture électronique sera probablement rejetée : elle enfreint des règles que vérifie le validateur du destinataire (voir einvoice-check %1).</translation>
    </message>
    <message>
      <source>%1 cannot become an e-invoice yet</source>
      <translation>%1 ne peut pas encore devenir une facture électronique</translation>
    </message>
    <message>
      <source>%1 breaks rules of EN 16931 or XRechnung</source>
      <translation>%1 enfreint des règles EN 16931 ou XRechnung</translation>
    </message>
    <message>
      <source>KEY is one of %1</source>
      <translation>KEY est l’un de %1</translation>
    </message>
    <message>
      <source>%1: nothing was changed (questions are answered only with --yes)</source>
      <translation>%1 : rien n’a été modifié (on ne répond aux questions qu’avec --yes)</translation>
    </message>
    <message>
      <source>No safety copy was written at this start.</source>
      <translation>Aucune copie de sécurité n’a été créée à ce démarrage.</translation>
    </message>
    <message>
      <source>Backed up the database to %1.
Moved the store to %2; Tamo opens it there from now on.</source>
      <translation>Base de données sauvegardée dans %1.
Base déplacée dans %2 ; Tamo l’ouvrira désormais à cet endroit.</translation>
    </message>
    <message>
      <source>The store is already in %1.</source>
      <translation>La base se trouve déjà dans %1.</translation>
    </message>
    <message>
      <source>move-store: the store stays in %1</source>
      <translation>move-store : la base reste dans %1</translation>
    </message>
    <message>
      <source>--price and --quantity need numbers such as 12.50</source>
      <translation>--price et --quantity attendent des nombres tels que 12.50</translation>
    </message>
    <message>
      <source>add-item: %1 was left as it is</source>
      <translation>add-item : %1 est resté tel quel</translation>
    </message>
    <message>
      <source>Added "%1" (%2 x %3) to %4; its total is now %5</source>
      <translation>« %1 » (%2 x %3) ajouté à %4 ; le total est maintenant de %5</translation>
    </message>
    <message>
      <source>set-client: %1 was left as it is</source>
      <translation>set-client : %1 est resté tel quel</translation>
    </message>
    <message>
      <source>there is no remembered client %1</source>
      <translation>il n’y a pas de client enregistré %1</translation>
    </message>
    <message>
      <source>cannot read %1</source>
      <translation>impossible de lire %1</translation>
    </message>
    <message>
      <source>%1 has %2 contacts; --index counts them from 0</source>
      <translation>%1 contient %2 contacts ; --index les compte à partir de 0</translation>
    </message>
    <message>
      <source>The client of %1 is now %2</source>
      <translation>Le client de %1 est maintenant %2</translation>
    </message>
    <message>
      <source>there is no design %1 (see designs list)</source>
      <translation>il n’y a pas de mise en page %1 (voir designs list)</translation>
    </message>
    <message>
      <source>cannot create the folder %1</source>
      <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
      <source>not written: %1: %2</source>
      <translation>non écrit : %1 : %2</translation>
    </message>
    <message>
      <source>%1 of %2 documents were not written</source>
      <translation>%1 documents sur %2 n’ont pas été écrits</translation>
    </message>
    <message>
      <source>(default)</source>
      <translation>(par défaut)</translation>
    </message>
    <message>
      <source>nothing deleted (answer with --yes)</source>
      <translation>rien n’a été supprimé (répondre avec --yes)</translation>
    </message>
    <message>
      <source>%1 %2 (%3 lines) %4</source>
      <translation>%1 %2 (%3 lignes) %4</translation>
    </message>
    <message>
      <source>there is no template %1 (see templates list)</source>
      <translation>il n’y a pas de modèle %1 (voir templates list)</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; the template was not applied</source>
      <translation>%1 est marqué comme déjà envoyé ; le modèle n’a pas été appliqué</translation>
    </message>
    <message>
      <source>%1 needs a date such as 2026-03-01</source>
      <translation>%1 requiert une date telle que 2026-03-01</translation>
    </message>
    <message>
      <source>Wrote %1 (1 page)</source>
      <translation>%1 écrit (1 page)</translation>
    </message>
    <message>
      <source>Wrote %1 (%2 pages)</source>
      <translation>%1 écrit (%2 pages)</translation>
    </message>
    <message>
      <source>The number of sample documents cannot be negative.</source>
      <translation>Le nombre de documents d’exemple ne peut pas être négatif.</translation>
    </message>
    <message>
      <source>The number of lines per document cannot be negative.</source>
      <translation>Le nombre de lignes par document ne peut pas être négatif.</translation>
    </message>
    <message>
      <source>The number of sample clients cannot be negative.</source>
      <translation>Le nombre de clients d’exemple ne peut pas être négatif.</translation>
    </message>
    <message>
      <source>The sample cannot be dated: the clock gives no time.</source>
      <translation>L’exemple ne peut pas être daté : l’horloge ne donne pas d’heure.</translation>
    </message>
    <message>
      <source>--file gives the image of prefsLogo</source>
      <translation>--file donne l’image de prefsLogo</translation>
    </message>
    <message>
      <source>prefsLogo holds an image: set it with --file IMAGE, or remove it with an empty value</source>
      <translation>prefsLogo contient une image : définissez-la avec --file IMAGE, ou supprimez-la avec une valeur vide</translation>
    </message>
    <message>
      <source>%1 is not a valid value for %2</source>
      <translation>%1 n’est pas une valeur valable pour %2</translation>
    </message>
    <message>
      <source>there is no setting named %1</source>
      <translation>il n’y a pas de réglage nommé %1</translation>
    </message>
    <message>
      <source>there are no starting values for "%1"</source>
      <translation>il n’y a pas de valeurs de départ pour « %1 »</translation>
    </message>
    <message>
      <source>setup: nothing was changed (questions are answered only with --yes)</source>
      <translation>setup : rien n’a été modifié (on ne répond aux questions qu’avec --yes)</translation>
    </message>
    <message>
      <source>setup: no starting values were applied</source>
      <translation>setup : aucune valeur de départ n’a été appliquée</translation>
    </message>
    <message>
      <source>Applied %1 starting values (%2).</source>
      <translation>%1 valeurs de départ appliquées (%2).</translation>
    </message>
    <message>
      <source>No mail client could take the message.</source>
      <translation>Aucun client de messagerie n'a pu prendre en charge le message.</translation>
    </message>
    <message>
      <source>The conformant file cannot be written; the standard file still can.</source>
      <translation>Le fichier conforme ne peut pas être généré ; le fichier standard peut l'être.</translation>
    </message>
    <message>
      <source>E-Invoice sheet</source>
      <translation>Fenêtre Facture électronique</translation>
    </message>
    <message>
      <source>Preferences → Company</source>
      <translation>Préférences → Entreprise</translation>
    </message>
    <message>
      <source>Preferences → Taxes</source>
      <translation>Préférences → Taxes</translation>
    </message>
    <message>
      <source>document: %1</source>
      <translation>document : %1</translation>
    </message>
    <message>
      <source>line %1: %2</source>
      <translation>ligne %1 : %2</translation>
    </message>
    <message>
      <source>E-Invoice Details: %1</source>
      <translation>Détails de la facture électronique : %1</translation>
    </message>
    <message>
      <source>Tamo writes one tax category for each tax of a line, and an e-invoice line may carry only one. Split the line into one line per tax; the conformant file cannot write it either.</source>
      <translation>Tamo inscrit une catégorie de taxe pour chaque taxe d'une ligne, et une ligne de facture électronique ne peut en porter qu'une. Scindez la ligne en une ligne par taxe ; le fichier conforme ne peut pas non plus l'inscrire.</translation>
    </message>
    <message>
      <source>The document's structure, not a missing entry, is the cause: the conformant file writes it as the rules require.</source>
      <translation>La cause est la structure du document, et non une saisie manquante : le fichier conforme l'inscrit comme l'exigent les règles.</translation>
    </message>
    <message>
      <source>E-Invoice Requirements</source>
      <translation>Exigences de la facture électronique</translation>
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
      <translation>Pour pouvoir exporter ou envoyer un fichier XML de facture électronique valide, les critères suivants doivent être remplis :

• Au moins un article ou un montant de facture doit être saisi.
• Les articles ne peuvent pas avoir une valeur négative.
• Les éventuelles remises doivent être calculées avant taxes.

• Les informations client minimales suivantes sont requises :
    • Adresse e-mail
    • Raison sociale
    • N° de TVA
    • Régime de taxe
    • Adresse e-mail
    • Code pays
    • Devise
    • Rue, code postal, ville

• Les informations fournisseur minimales suivantes sont requises :
    • Raison sociale
    • N° de TVA
    • Régime de taxe
    • IBAN
    • Contact
    • Téléphone
    • Adresse e-mail
    • Code pays
    • Devise
    • Rue, code postal, ville

Les informations requises peuvent être modifiées à tout moment pour chaque facture dans la boîte de dialogue « Détails de la facture électronique ».</translation>
    </message>
    <message>
      <source>Tamo and E-Invoicing</source>
      <translation>Tamo et la facturation électronique</translation>
    </message>
    <message>
      <source>Germany is moving business-to-business invoicing to e-invoices: structured files such as XRechnung that software can read without retyping. A PDF sent by e-mail is no longer an e-invoice.

Receiving: since 1 January 2025 every business in Germany must be able to accept e-invoices from other businesses.

Issuing: until the end of 2026 paper and PDF invoices remain allowed. Businesses whose turnover in the previous year was no more than 800,000 euros may keep sending them until the end of 2027. From 1 January 2028 every business must issue e-invoices to other businesses.

Tamo writes XRechnung 3.0 files. Enter your supplier details in the preferences and the customer's details in the 'E-Invoice Details' dialog of each invoice, then choose 'Export E-Invoice…'. To read the e-invoices you receive, use an e-invoice viewer: the button below shows where to find one.</source>
      <translation>L'Allemagne fait passer la facturation entre entreprises à la facture électronique : des fichiers structurés, comme XRechnung, que les logiciels peuvent lire sans ressaisie. Un PDF envoyé par e-mail n'est plus une facture électronique.

Réception : depuis le 1er janvier 2025, toute entreprise en Allemagne doit pouvoir accepter les factures électroniques d'autres entreprises.

Émission : jusqu'à fin 2026, les factures papier et PDF restent autorisées. Les entreprises dont le chiffre d'affaires de l'année précédente n'a pas dépassé 800 000 euros peuvent continuer à les envoyer jusqu'à fin 2027. À partir du 1er janvier 2028, toute entreprise doit émettre des factures électroniques à destination des autres entreprises.

Tamo génère des fichiers XRechnung 3.0. Saisissez vos informations de fournisseur dans les préférences et celles du client dans la boîte de dialogue « Détails de la facture électronique » de chaque facture, puis choisissez « Exporter la facture électronique… ». Pour lire les factures électroniques que vous recevez, utilisez une visionneuse de factures électroniques : le bouton ci-dessous indique où en trouver une.</translation>
    </message>
    <message>
      <source>About E-Invoicing</source>
      <translation>À propos de la facturation électronique</translation>
    </message>
    <message>
      <source>Find an E-Invoice Viewer</source>
      <translation>Trouver une visionneuse de factures électroniques</translation>
    </message>
    <message>
      <source>The e-invoice needs a date in %1, and the UBL schema rejects an empty one.</source>
      <translation>La facture électronique requiert une date dans %1, et le schéma UBL refuse une date vide.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a date the UBL schema accepts.</source>
      <translation>« %1 » dans %2 n'est pas une date acceptée par le schéma UBL.</translation>
    </message>
    <message>
      <source>%1 is not a number: a fixed discount on a document whose lines add up to 0 makes the totals not-a-number. Remove the discount or add lines.</source>
      <translation>%1 n'est pas un nombre : une remise fixe sur un document dont les lignes totalisent 0 rend les totaux indéterminés. Supprimez la remise ou ajoutez des lignes.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a number the UBL schema accepts.</source>
      <translation>« %1 » dans %2 n'est pas un nombre accepté par le schéma UBL.</translation>
    </message>
    <message>
      <source>The e-invoice would contain an empty element (%1); empty elements are not allowed. Fill in the value it comes from.</source>
      <translation>La facture électronique contiendrait un élément vide (%1) ; les éléments vides ne sont pas autorisés. Renseignez la valeur dont il provient.</translation>
    </message>
    <message>
      <source>The document has no number.</source>
      <translation>Le document n'a pas de numéro.</translation>
    </message>
    <message>
      <source>The document has no date.</source>
      <translation>Le document n'a pas de date.</translation>
    </message>
    <message>
      <source>The e-invoice names no currency.</source>
      <translation>La facture électronique n'indique aucune devise.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 4217 currency code such as EUR.</source>
      <translation>« %1 » n'est pas un code de devise ISO 4217 tel que EUR.</translation>
    </message>
    <message>
      <source>The e-invoice has no line.</source>
      <translation>La facture électronique ne comporte aucune ligne.</translation>
    </message>
    <message>
      <source>The e-invoice needs a buyer reference, which Tamo takes from the document's title: enter one (for a public client, the routing ID it gave you, its Leitweg-ID).</source>
      <translation>La facture électronique requiert une référence acheteur, que Tamo tire du titre du document : saisissez-en une (pour un client public, l'identifiant d'acheminement qu'il vous a communiqué, sa Leitweg-ID).</translation>
    </message>
    <message>
      <source>The amounts carry the currency “%1”, which is not an ISO 4217 code such as EUR.</source>
      <translation>Les montants sont exprimés dans la devise « %1 », qui n'est pas un code ISO 4217 tel que EUR.</translation>
    </message>
    <message>
      <source>Your phone number should contain at least three digits.</source>
      <translation>Votre numéro de téléphone doit comporter au moins trois chiffres.</translation>
    </message>
    <message>
      <source>Your e-mail address “%1” should be one address such as name@example.com.</source>
      <translation>Votre adresse e-mail « %1 » doit être une seule adresse, telle que nom@example.com.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 3166 country code such as DE.</source>
      <translation>« %1 » n'est pas un code pays ISO 3166 tel que DE.</translation>
    </message>
    <message>
      <source>The VAT identifier “%1” does not start with a country code such as DE.</source>
      <translation>Le n° de TVA « %1 » ne commence pas par un code pays tel que DE.</translation>
    </message>
    <message>
      <source>The place of delivery has no country code.</source>
      <translation>Le lieu de livraison n'a pas de code pays.</translation>
    </message>
    <message>
      <source>Taxed and tax-exempt items need your VAT identifier or tax number.</source>
      <translation>Les éléments taxés et exonérés nécessitent votre n° de TVA ou votre numéro fiscal.</translation>
    </message>
    <message>
      <source>Line %1 has no description.</source>
      <translation>La ligne %1 n'a pas de description.</translation>
    </message>
    <message>
      <source>The price of line %1 is negative, and an e-invoice price may not be.</source>
      <translation>Le prix de la ligne %1 est négatif, ce qui est interdit dans une facture électronique.</translation>
    </message>
    <message>
      <source>Line %1 has no tax category.</source>
      <translation>La ligne %1 n'a pas de catégorie de taxe.</translation>
    </message>
    <message>
      <source>The tax categories name the tax scheme “%1”, and the rules count only those of the scheme VAT: enter VAT as the tax scheme.</source>
      <translation>Les catégories de taxe indiquent le régime de taxe « %1 », et les règles ne prennent en compte que celles du régime VAT : saisissez VAT comme régime de taxe.</translation>
    </message>
    <message>
      <source>Line %1 must have exactly one tax category; it has %2.</source>
      <translation>La ligne %1 doit avoir exactement une catégorie de taxe ; elle en a %2.</translation>
    </message>
    <message>
      <source>The amount of line %1 (%2) is not its quantity times its price (%3 × %4 = %5).</source>
      <translation>Le montant de la ligne %1 (%2) n'est pas égal à sa quantité multipliée par son prix (%3 × %4 = %5).</translation>
    </message>
    <message>
      <source>The tax total (%1) is not the sum of the tax subtotals (%2).</source>
      <translation>Le total des taxes (%1) n'est pas la somme des sous-totaux de taxe (%2).</translation>
    </message>
    <message>
      <source>The tax at %1 % (%2) is not the taxable amount %3 times the rate, rounded to the cent (%4).</source>
      <translation>La taxe à %1 % (%2) n'est pas égale à la base imposable %3 multipliée par le taux, arrondie au centime (%4).</translation>
    </message>
    <message>
      <source>The sum of the lines (%1) is not what the line amounts add up to (%2).</source>
      <translation>La somme des lignes (%1) ne correspond pas au total des montants des lignes (%2).</translation>
    </message>
    <message>
      <source>none</source>
      <translation>aucun</translation>
    </message>
    <message>
      <source>The total without tax (%1) is not the sum of the lines less the allowances plus the charges (%2).</source>
      <translation>Le total hors taxe (%1) n'est pas égal à la somme des lignes moins les remises plus les majorations (%2).</translation>
    </message>
    <message>
      <source>The tax total is not given in the document's currency %1, so the total with tax cannot add up.</source>
      <translation>Le total des taxes n'est pas exprimé dans la devise du document, %1 ; le total toutes taxes comprises ne peut donc pas être cohérent.</translation>
    </message>
    <message>
      <source>The total with tax (%1) is not the total without tax plus the tax (%2).</source>
      <translation>Le total toutes taxes comprises (%1) n'est pas égal au total hors taxe plus la taxe (%2).</translation>
    </message>
    <message>
      <source>The amount due (%1) is not the total with tax less what was paid (%2).</source>
      <translation>Le montant dû (%1) n'est pas égal au total toutes taxes comprises moins ce qui a été payé (%2).</translation>
    </message>
    <message>
      <source>The file is not a readable archive.</source>
      <translation>Le fichier n’est pas une archive lisible.</translation>
    </message>
    <message>
      <source>The file “%1” could not be found.</source>
      <translation>Le fichier « %1 » est introuvable.</translation>
    </message>
    <message>
      <source>The file “%1” is too large to be a Tamo file (%2 MB).</source>
      <translation>Le fichier « %1 » est trop volumineux pour être un fichier Tamo (%2 Mo).</translation>
    </message>
    <message>
      <source>Nothing was read from it.</source>
      <translation>Rien n’y a été lu.</translation>
    </message>
    <message>
      <source>The file “%1” could not be read.</source>
      <translation>Le fichier « %1 » n’a pas pu être lu.</translation>
    </message>
    <message>
      <source>The data could not be written as a property list.</source>
      <translation>Les données n’ont pas pu être écrites en liste de propriétés.</translation>
    </message>
    <message>
      <source>The file is empty or not a property list.</source>
      <translation>Le fichier est vide ou n’est pas une liste de propriétés.</translation>
    </message>
    <message>
      <source>The file refers to itself in a loop.</source>
      <translation>Le fichier renvoie à lui-même en boucle.</translation>
    </message>
    <message>
      <source>The file nests deeper than any Tamo file does.</source>
      <translation>Le fichier est plus imbriqué que ne l’est aucun fichier Tamo.</translation>
    </message>
    <message>
      <source>“%1” holds “%2”, which is not a date.</source>
      <translation>« %1 » contient « %2 », qui n’est pas une date.</translation>
    </message>
    <message>
      <source>Record %1: %2</source>
      <translation>Enregistrement %1 : %2</translation>
    </message>
    <message>
      <source>The file is not a property list, or it is damaged.</source>
      <translation>Le fichier n’est pas une liste de propriétés, ou il est endommagé.</translation>
    </message>
    <message>
      <source>a yes/no value</source>
      <translation>une valeur oui/non</translation>
    </message>
    <message>
      <source>a number</source>
      <translation>un nombre</translation>
    </message>
    <message>
      <source>a list</source>
      <translation>une liste</translation>
    </message>
    <message>
      <source>a record</source>
      <translation>un enregistrement</translation>
    </message>
    <message>
      <source>a date</source>
      <translation>une date</translation>
    </message>
    <message>
      <source>binary data</source>
      <translation>des données binaires</translation>
    </message>
    <message>
      <source>an object reference</source>
      <translation>une référence d’objet</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>un nombre entier</translation>
    </message>
    <message>
      <source>“%1” holds %2 where %3 belongs</source>
      <translation>« %1 » contient %2 là où il faut %3</translation>
    </message>
    <message>
      <source>“%1” holds %2, which is too large for a whole number</source>
      <translation>« %1 » contient %2, trop grand pour un nombre entier</translation>
    </message>
    <message>
      <source>“status” holds %1, which is no status (0 to 4)</source>
      <translation>« status » contient %1, qui n’est pas un statut (0 à 4)</translation>
    </message>
    <message>
      <source>Record %1</source>
      <translation>Enregistrement %1</translation>
    </message>
    <message>
      <source>Record %1 (%2)</source>
      <translation>Enregistrement %1 (%2)</translation>
    </message>
    <message>
      <source>a record names no kind</source>
      <translation>un enregistrement n’indique aucun type</translation>
    </message>
    <message>
      <source>there are no records of kind “%1”</source>
      <translation>il n’existe pas d’enregistrements de type « %1 »</translation>
    </message>
    <message>
      <source>The %1 record %2 holds %3 in “%4”, which a property list cannot hold.</source>
      <translation>L’enregistrement %1 %2 contient %3 dans « %4 », ce qu’une liste de propriétés ne peut pas contenir.</translation>
    </message>
    <message>
      <source>%1 stands where a record belongs</source>
      <translation>%1 se trouve là où il faut un enregistrement</translation>
    </message>
    <message>
      <source>It holds %1 where a list of records belongs.</source>
      <translation>Il contient %1 là où il faut une liste d’enregistrements.</translation>
    </message>
    <message>
      <source>The file “%1” could not be put in place.</source>
      <translation>Le fichier « %1 » n’a pas pu être mis en place.</translation>
    </message>
    <message>
      <source>The file “%1” could not be removed.</source>
      <translation>Le fichier « %1 » n’a pas pu être supprimé.</translation>
    </message>
    <message>
      <source>The copy “%1” could not be written.</source>
      <translation>La copie « %1 » n’a pas pu être écrite.</translation>
    </message>
    <message>
      <source>It was found damaged after writing: %1</source>
      <translation>Elle était endommagée après l’écriture : %1</translation>
    </message>
    <message>
      <source>The file “%1” is not a Tamo database that Tamo can use.</source>
      <translation>Le fichier « %1 » n’est pas une base de données Tamo utilisable par Tamo.</translation>
    </message>
    <message>
      <source>It is damaged: %1</source>
      <translation>Elle est endommagée : %1</translation>
    </message>
    <message>
      <source>It records no Tamo layout.</source>
      <translation>Elle n’indique aucune structure Tamo.</translation>
    </message>
    <message>
      <source>The store “%1” is damaged.</source>
      <translation>La base « %1 » est endommagée.</translation>
    </message>
    <message>
      <source>SQLite reports: %1 Tamo has changed nothing; a recovery copy or a backup can take its place (File › Recover Previous Database…, or tamo recover).</source>
      <translation>SQLite signale : %1 Tamo n’a rien modifié ; une copie de récupération ou une sauvegarde peut la remplacer (Fichier › Récupérer une base de données précédente… ou tamo recover).</translation>
    </message>
    <message>
      <source>The store “%1” was written by a newer version of Tamo.</source>
      <translation>La base « %1 » a été écrite par une version plus récente de Tamo.</translation>
    </message>
    <message>
      <source>Please update Tamo to open it.</source>
      <translation>Veuillez mettre Tamo à jour pour l’ouvrir.</translation>
    </message>
    <message>
      <source>Expected a folder to store application data, found a file (%1).</source>
      <translation>Un dossier était attendu pour les données de l’application, mais un fichier a été trouvé (%1).</translation>
    </message>
    <message>
      <source>The folder %1 could not be created.</source>
      <translation>Le dossier %1 n’a pas pu être créé.</translation>
    </message>
    <message>
      <source>Please check that you may write to its parent folder.</source>
      <translation>Veuillez vérifier que vous pouvez écrire dans son dossier parent.</translation>
    </message>
    <message>
      <source>The file %1 could not be replaced.</source>
      <translation>Le fichier %1 n’a pas pu être remplacé.</translation>
    </message>
    <message>
      <source>The disk is full.</source>
      <translation>Le disque est plein.</translation>
    </message>
    <message>
      <source>Permission denied.</source>
      <translation>Permission refusée.</translation>
    </message>
    <message>
      <source>The file system is read-only.</source>
      <translation>Le système de fichiers est en lecture seule.</translation>
    </message>
    <message>
      <source>The folder does not exist.</source>
      <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
      <source>A folder stands in its place.</source>
      <translation>Un dossier se trouve à sa place.</translation>
    </message>
    <message>
      <source>Part of its path is not a folder.</source>
      <translation>Une partie de son chemin n’est pas un dossier.</translation>
    </message>
    <message>
      <source>The disk reported an error.</source>
      <translation>Le disque a signalé une erreur.</translation>
    </message>
    <message>
      <source>The system gave no reason.</source>
      <translation>Le système n’a donné aucune raison.</translation>
    </message>
    <message>
      <source>The file “%1” could not be written.</source>
      <translation>Le fichier « %1 » n’a pas pu être écrit.</translation>
    </message>
    <message>
      <source>The file is not a Tamo design.</source>
      <translation>Le fichier n’est pas une mise en page Tamo.</translation>
    </message>
    <message>
      <source>It holds no dictionary.</source>
      <translation>Il ne contient aucun dictionnaire.</translation>
    </message>
    <message>
      <source>It holds no “designDic” dictionary.</source>
      <translation>Il ne contient aucun dictionnaire « designDic ».</translation>
    </message>
    <message>
      <source>The built-in design “%1” is missing.</source>
      <translation>La mise en page intégrée « %1 » est introuvable.</translation>
    </message>
    <message>
      <source>“%1” cannot be used as the logo.</source>
      <translation>« %1 » ne peut pas être utilisé comme logo.</translation>
    </message>
    <message>
      <source>The file is larger than 20 MB.</source>
      <translation>Le fichier dépasse 20 Mo.</translation>
    </message>
    <message>
      <source>The file cannot be opened.</source>
      <translation>Impossible d'ouvrir le fichier.</translation>
    </message>
    <message>
      <source>It is no image Tamo can read (PNG, JPEG, GIF, BMP, SVG or WebP).</source>
      <translation>Ce n'est pas une image que Tamo sait lire (PNG, JPEG, GIF, BMP, SVG ou WebP).</translation>
    </message>
    <message>
      <source>The image could not be converted to PNG.</source>
      <translation>Impossible de convertir l'image en PNG.</translation>
    </message>
    <message>
      <source>%1 image, %2 × %3 pixels, %4</source>
      <translation>Image %1, %2 × %3 pixels, %4</translation>
    </message>
    <message>
      <source>Invoices</source>
      <translation>Factures</translation>
    </message>
    <message>
      <source>Average</source>
      <translation>Moyenne</translation>
    </message>
    <message>
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message>
      <source>TOTAL</source>
      <translation>TOTAL</translation>
    </message>
    <message>
      <source>DUE</source>
      <translation>DÛ</translation>
    </message>
    <message>
      <source>PAID</source>
      <translation>PAYÉ</translation>
    </message>
    <message>
      <source>AVERAGE</source>
      <translation>MOYENNE</translation>
    </message>
    <message>
      <source>The starting values “%1” could not be read.</source>
      <translation>Les valeurs de départ « %1 » n’ont pas pu être lues.</translation>
    </message>
    <message>
      <source>Tamo has no setting “%1”.</source>
      <translation>Tamo n’a pas de réglage « %1 ».</translation>
    </message>
    <message>
      <source>The value of “%1” is %2, which that setting cannot hold.</source>
      <translation>La valeur de « %1 » est %2, ce que ce réglage ne peut pas contenir.</translation>
    </message>
    <message>
      <source>The account book could not be drawn.</source>
      <translation>Le livre de comptes n’a pas pu être dessiné.</translation>
    </message>
    <message>
      <source>Send To</source>
      <translation>Envoyer vers</translation>
    </message>
    <message>
      <source>Ledrix…</source>
      <translation>Ledrix…</translation>
    </message>
    <message>
      <source>Kelvane…</source>
      <translation>Kelvane…</translation>
    </message>
    <message>
      <source>Importing from Within Ledrix…</source>
      <translation>Importer depuis Ledrix…</translation>
    </message>
    <message>
      <source>Preparing invoices for Ledrix</source>
      <translation>Préparation des factures pour Ledrix</translation>
    </message>
    <message>
      <source>%1 of %2 PDFs written</source>
      <translation>%1 PDF sur %2 générés</translation>
    </message>
    <message>
      <source>--kind is 0 (every sent invoice), 1 (paid) or 2 (overdue)</source>
      <translation>--kind vaut 0 (toutes les factures envoyées), 1 (payées) ou 2 (en retard)</translation>
    </message>
    <message>
      <source>Handed “%1” to %2.</source>
      <translation>« %1 » transmis à %2.</translation>
    </message>
    <message>
      <source>Writing %1 PDFs for Ledrix…</source>
      <translation>Génération de %1 PDF pour Ledrix…</translation>
    </message>
    <message>
      <source>not written: </source>
      <translation>non généré : </translation>
    </message>
    <message>
      <source>Wrote %1 and called Ledrix back.</source>
      <translation>Fichier %1 écrit et Ledrix rappelé.</translation>
    </message>
    <message>
      <source>Tamo can put a copy of your data in place of the damaged store. The damaged file is kept as a recovery copy.</source>
      <translation>Tamo peut mettre une copie de vos données à la place de la base endommagée. Le fichier endommagé est conservé comme copie de récupération.</translation>
    </message>
    <message>
      <source>The newest recovery copy is “%1”.</source>
      <translation>La copie de récupération la plus récente est « %1 ».</translation>
    </message>
    <message>
      <source>Not Now</source>
      <translation>Pas maintenant</translation>
    </message>
    <message>
      <source>Recover Your Data</source>
      <translation>Récupérer vos données</translation>
    </message>
    <message>
      <source>Failed to initialize the store</source>
      <translation>Impossible d’initialiser la base</translation>
    </message>
    <message>
      <source>There was an error building up the data file.</source>
      <translation>Une erreur s’est produite lors de la construction du fichier de données.</translation>
    </message>
    <message>
      <source>It is in use by %1; this is a snapshot of it.</source>
      <translation>Elle est utilisée par %1 ; ceci en est un instantané.</translation>
    </message>
    <message>
      <source>another Tamo</source>
      <translation>un autre Tamo</translation>
    </message>
    <message>
      <source>Tamo cannot make its store in the folder “%1”.</source>
      <translation>Tamo ne peut pas créer sa base dans le dossier « %1 ».</translation>
    </message>
    <message>
      <source>Its folder “%1” may not be written. %2</source>
      <translation>Son dossier « %1 » ne peut pas être modifié. %2</translation>
    </message>
    <message>
      <source>The store file may only be read.</source>
      <translation>Le fichier de la base ne peut qu’être lu.</translation>
    </message>
    <message>
      <source>The store “%1” is open for reading only.</source>
      <translation>La base « %1 » est ouverte en lecture seule.</translation>
    </message>
    <message>
      <source>Your change was not kept.</source>
      <translation>Votre modification n’a pas été conservée.</translation>
    </message>
    <message>
      <source>Quit anyway</source>
      <translation>Quitter quand même</translation>
    </message>
    <message>
      <source>Could not save changes while quitting. Quit anyway?</source>
      <translation>Les modifications n’ont pas pu être enregistrées en quittant. Quitter quand même ?</translation>
    </message>
    <message>
      <source>Quitting now will lose any changes you have made since the last successful save</source>
      <translation>Si vous quittez maintenant, toutes les modifications faites depuis le dernier enregistrement réussi seront perdues</translation>
    </message>
    <message>
      <source>The data nests too deeply to be archived.</source>
      <translation>Les données sont trop imbriquées pour être archivées.</translation>
    </message>
    <message>
      <source>The data holds a value that cannot be archived.</source>
      <translation>Les données contiennent une valeur qui ne peut pas être archivée.</translation>
    </message>
    <message>
      <source>Only %1 of its %2 bytes reached the disk.</source>
      <translation>Seuls %1 de ses %2 octets ont atteint le disque.</translation>
    </message>
    <message>
      <source>First name:</source>
      <translation>Prénom :</translation>
    </message>
    <message>
      <source>Last name:</source>
      <translation>Nom de famille :</translation>
    </message>
    <message>
      <source>E-mail:</source>
      <translation>E-mail :</translation>
    </message>
    <message>
      <source>VAT ID:</source>
      <translation>N° de TVA :</translation>
    </message>
    <message>
      <source>Name:</source>
      <translation>Nom :</translation>
    </message>
    <message>
      <source>Legal name:</source>
      <translation>Raison sociale :</translation>
    </message>
    <message>
      <source>Contact:</source>
      <translation>Contact :</translation>
    </message>
    <message>
      <source>Street:</source>
      <translation>Rue :</translation>
    </message>
    <message>
      <source>Postal code:</source>
      <translation>Code postal :</translation>
    </message>
    <message>
      <source>City:</source>
      <translation>Ville :</translation>
    </message>
    <message>
      <source>Country code:</source>
      <translation>Code pays :</translation>
    </message>
    <message>
      <source>Tax scheme:</source>
      <translation>Régime de taxe :</translation>
    </message>
    <message>
      <source>Currency:</source>
      <translation>Devise :</translation>
    </message>
    <message>
      <source>Choose Client</source>
      <translation>Choisir le client</translation>
    </message>
    <message>
      <source>No contacts to show. Tamo reads them from the vCard file or folder chosen in the preferences.</source>
      <translation>Aucun contact à afficher. Tamo les lit dans le fichier ou le dossier vCard choisi dans les préférences.</translation>
    </message>
    <message>
      <source>Open Contacts</source>
      <translation>Ouvrir les contacts</translation>
    </message>
    <message>
      <source>Search</source>
      <translation>Rechercher</translation>
    </message>
    <message>
      <source>Use Client</source>
      <translation>Utiliser ce client</translation>
    </message>
    <message>
      <source>Contacts</source>
      <translation>Contacts</translation>
    </message>
    <message>
      <source>Remembered Clients</source>
      <translation>Clients mémorisés</translation>
    </message>
    <message>
      <source>Address:</source>
      <translation>Adresse :</translation>
    </message>
    <message>
      <source>New Client Number</source>
      <translation>Nouveau numéro client</translation>
    </message>
    <message>
      <source>Client no.:</source>
      <translation>N° client :</translation>
    </message>
    <message>
      <source>E-invoice buyer</source>
      <translation>Acheteur (facture électronique)</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>Appliquer</translation>
    </message>
    <message>
      <source>%1 — %2</source>
      <translation>%1 — %2</translation>
    </message>
    <message>
      <source>Choose Client…</source>
      <translation>Choisir le client…</translation>
    </message>
    <message>
      <source>You have one ore more broken vcards in your %1; probably from a corrupted iCloud sync.

Please open your %1 and delete it or them. Usually, they are very easy to spot. Just look for 'No Name' or '(null)' and you may need to do this on your others devices as well, in case it is happening again.

After doing that, just restart Tamo and you will be able to select people and addresses without any problems.</source>
      <translation>Votre %1 contient une ou plusieurs vCards endommagées, sans doute à cause d’une synchronisation iCloud défectueuse.

Veuillez ouvrir votre %1 et les supprimer. Elles sont généralement très faciles à repérer : cherchez simplement « No Name » ou « (null) ». Si cela se reproduit, il faudra peut-être le faire aussi sur vos autres appareils.

Ensuite, redémarrez simplement Tamo et vous pourrez choisir des personnes et des adresses sans aucun problème.</translation>
    </message>
    <message>
      <source>You need to provide an address pattern in the Preferences.</source>
      <translation>Vous devez indiquer un modèle d’adresse dans les préférences.</translation>
    </message>
    <message>
      <source>Set Client</source>
      <translation>Définition du client</translation>
    </message>
    <message>
      <source>Choose vCard File…</source>
      <translation>Choisir un fichier vCard…</translation>
    </message>
    <message>
      <source>Choose Folder…</source>
      <translation>Choisir un dossier…</translation>
    </message>
    <message>
      <source>Tamo takes its clients from an address book of vCard files (.vcf), and none is chosen yet; no contacts application was found to open instead. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>Tamo tire ses clients d'un carnet d'adresses composé de fichiers vCard (.vcf), et aucun n'est encore choisi ; aucune application de contacts n'a été trouvée pour l'ouvrir à la place. Choisissez un fichier vCard, ou un dossier de fichiers vCard, comme carnet d'adresses.</translation>
    </message>
    <message>
      <source>The address book “%1” is not there any more. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>Le carnet d'adresses « %1 » n'existe plus. Choisissez un fichier vCard, ou un dossier de fichiers vCard, comme carnet d'adresses.</translation>
    </message>
    <message>
      <source>Choose Address Book</source>
      <translation>Choisir le carnet d'adresses</translation>
    </message>
    <message>
      <source>Clients from the address book</source>
      <translation>Clients du carnet d'adresses</translation>
    </message>
    <message>
      <source>Address pattern:</source>
      <translation>Modèle d'adresse :</translation>
    </message>
    <message>
      <source>Inserts the token at the cursor</source>
      <translation>Insère le jeton à la position du curseur</translation>
    </message>
    <message>
      <source>Example:</source>
      <translation>Exemple :</translation>
    </message>
    <message>
      <source>Client name:</source>
      <translation>Nom du client :</translation>
    </message>
    <message>
      <source>Last name</source>
      <translation>Nom</translation>
    </message>
    <message>
      <source>First and last name</source>
      <translation>Prénom et nom</translation>
    </message>
    <message>
      <source>Title and last name</source>
      <translation>Civilité et nom</translation>
    </message>
    <message>
      <source>Title and first name</source>
      <translation>Civilité et prénom</translation>
    </message>
    <message>
      <source>Title, first and last name</source>
      <translation>Civilité, prénom et nom</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Carnet d'adresses</translation>
    </message>
    <message>
      <source>A vCard file, or a folder of them</source>
      <translation>Un fichier vCard, ou un dossier de fichiers vCard</translation>
    </message>
    <message>
      <source>File…</source>
      <translation>Fichier…</translation>
    </message>
    <message>
      <source>Folder…</source>
      <translation>Dossier…</translation>
    </message>
    <message>
      <source>Choose the Address Book</source>
      <translation>Choisir le carnet d'adresses</translation>
    </message>
    <message>
      <source>vCards (*.vcf *.vcard)</source>
      <translation>Fichiers vCard (*.vcf *.vcard)</translation>
    </message>
    <message>
      <source>Choose the Folder of vCards</source>
      <translation>Choisir le dossier des fichiers vCard</translation>
    </message>
    <message>
      <source>vCards:</source>
      <translation>Fichiers vCard :</translation>
    </message>
    <message>
      <source>Pop-overs open on</source>
      <translation>Les fenêtres de sélection s'ouvrent sur</translation>
    </message>
    <message>
      <source>Client:</source>
      <translation>Client :</translation>
    </message>
    <message>
      <source>The address book</source>
      <translation>Le carnet d'adresses</translation>
    </message>
    <message>
      <source>The remembered clients</source>
      <translation>Les clients mémorisés</translation>
    </message>
    <message>
      <source>New line:</source>
      <translation>Nouvelle ligne :</translation>
    </message>
    <message>
      <source>An empty line</source>
      <translation>Une ligne vide</translation>
    </message>
    <message>
      <source>The catalog</source>
      <translation>Le catalogue</translation>
    </message>
    <message>
      <source>Shipping:</source>
      <translation>Frais de port :</translation>
    </message>
    <message>
      <source>The shipping entry</source>
      <translation>La saisie des frais de port</translation>
    </message>
    <message>
      <source>The remembered shipping</source>
      <translation>Les frais de port mémorisés</translation>
    </message>
    <message>
      <source>Jane</source>
      <translation>Marie</translation>
    </message>
    <message>
      <source>Doe</source>
      <translation>Dupont</translation>
    </message>
    <message>
      <source>Example Ltd</source>
      <translation>Exemple SARL</translation>
    </message>
    <message>
      <source>1 Main Street</source>
      <translation>1 rue Principale</translation>
    </message>
    <message>
      <source>Springfield</source>
      <translation>Villeneuve</translation>
    </message>
    <message>
      <source>62701</source>
      <translation>75001</translation>
    </message>
    <message>
      <source>IL</source>
      <translation>IDF</translation>
    </message>
    <message>
      <source>United States</source>
      <translation>France</translation>
    </message>
    <message>
      <source>Dr.</source>
      <translation>Dr</translation>
    </message>
    <message>
      <source>Client name: %1</source>
      <translation>Nom du client : %1</translation>
    </message>
    <message>
      <source>Without vCards, the client panel offers the remembered clients and lets you type a client.</source>
      <translation>Sans fichiers vCard, le panneau client propose les clients mémorisés et vous permet de saisir un client.</translation>
    </message>
    <message>
      <source>There is no file or folder at this place.</source>
      <translation>Il n'y a aucun fichier ni dossier à cet emplacement.</translation>
    </message>
    <message numerus="yes">
      <source>%n contact(s) found.</source>
      <translation>
        <numerusform>%n contact trouvé.</numerusform>
        <numerusform>%n contacts trouvés.</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) cannot be read.</source>
      <translation>
        <numerusform>%n fiche ne peut pas être lue.</numerusform>
        <numerusform>%n fiches ne peuvent pas être lues.</numerusform>
      </translation>
    </message>
    <message>
      <source>unknown option %1</source>
      <translation>option inconnue %1</translation>
    </message>
    <message>
      <source>%1 takes no value</source>
      <translation>%1 ne prend pas de valeur</translation>
    </message>
    <message>
      <source>%1 needs a value</source>
      <translation>%1 attend une valeur</translation>
    </message>
    <message>
      <source>Your name or your business's name</source>
      <translation>Votre nom ou le nom de votre entreprise</translation>
    </message>
    <message>
      <source>Slogan:</source>
      <translation>Slogan :</translation>
    </message>
    <message>
      <source>Address, phone, mail and web site, as your letterhead shows them</source>
      <translation>Adresse, téléphone, e-mail et site web, tels qu'ils figurent sur votre papier à en-tête</translation>
    </message>
    <message>
      <source>Name · Street 1 · 12345 Town</source>
      <translation>Nom · 1 rue Exemple · 12345 Ville</translation>
    </message>
    <message>
      <source>Sender line:</source>
      <translation>Ligne d'expéditeur :</translation>
    </message>
    <message>
      <source>Printed small above the client's address, so that it shows in the window of an envelope.</source>
      <translation>Imprimée en petit au-dessus de l'adresse du client, pour apparaître dans la fenêtre d'une enveloppe.</translation>
    </message>
    <message>
      <source>Logo:</source>
      <translation>Logo :</translation>
    </message>
    <message>
      <source>Such as EUR</source>
      <translation>Par exemple EUR</translation>
    </message>
    <message>
      <source>Sender</source>
      <translation>Expéditeur</translation>
    </message>
    <message>
      <source>E-invoices (XRechnung)</source>
      <translation>Factures électroniques (XRechnung)</translation>
    </message>
    <message>
      <source>“%1” is not a tax category for lines without taxes; choose one of E, AE, K, G, O or Z.</source>
      <translation>« %1 » n'est pas une catégorie de taxe valable pour les lignes sans taxe ; choisissez E, AE, K, G, O ou Z.</translation>
    </message>
    <message>
      <source>Line %1 has %2 taxes, and an e-invoice line carries one tax category: split it into one line per tax.</source>
      <translation>La ligne %1 porte %2 taxes, et une ligne de facture électronique ne porte qu'une catégorie de taxe : scindez-la en une ligne par taxe.</translation>
    </message>
    <message>
      <source>Line %1 has a negative tax rate.</source>
      <translation>La ligne %1 a un taux de taxe négatif.</translation>
    </message>
    <message>
      <source>Line %1 has a compound tax, levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>La ligne %1 comporte une taxe composée, appliquée sur une autre taxe ; les règles ne connaissent que les taxes sur le montant net.</translation>
    </message>
    <message>
      <source>The shipping has %1 taxes, and an e-invoice charge carries one tax category.</source>
      <translation>Les frais de port portent %1 taxes, et une majoration de facture électronique ne porte qu'une catégorie de taxe.</translation>
    </message>
    <message>
      <source>The shipping's tax is compound (Preferences → Taxes), levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>La taxe des frais de port est composée (Préférences → Taxes), appliquée sur une autre taxe ; les règles ne connaissent que les taxes sur le montant net.</translation>
    </message>
    <message>
      <source>The discount is calculated after taxes; the rules take allowances off the net amount.</source>
      <translation>La remise est calculée après taxes ; les règles déduisent les remises du montant net.</translation>
    </message>
    <message>
      <source>The discount has no value: a fixed discount on lines that add up to 0.</source>
      <translation>La remise n'a pas de valeur : une remise fixe sur des lignes qui totalisent 0.</translation>
    </message>
    <message>
      <source>No printer is set up on this computer.</source>
      <translation>Aucune imprimante n'est configurée sur cet ordinateur.</translation>
    </message>
    <message>
      <source>Add a printer in the system settings, or save the document as a PDF file instead.</source>
      <translation>Ajoutez une imprimante dans les paramètres du système, ou enregistrez plutôt le document en PDF.</translation>
    </message>
    <message>
      <source>The document could not be sent to the printer “%1”.</source>
      <translation>Impossible d'envoyer le document à l'imprimante « %1 ».</translation>
    </message>
    <message>
      <source>The safety copy of your invoices was not written.</source>
      <translation>La copie de sécurité de vos factures n’a pas été écrite.</translation>
    </message>
    <message>
      <source>No valid backup file available. Please restore your Tamo database from your own (Time Machine) backups.</source>
      <translation>Aucun fichier de sauvegarde valable n’est disponible. Veuillez restaurer votre base de données Tamo à partir de vos propres sauvegardes (Time Machine).</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from the safety copy. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de restaurer vos factures Tamo à partir de la copie de sécurité. Toutes les factures existantes seront remplacées de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Restore…</source>
      <translation>Restaurer…</translation>
    </message>
    <message>
      <source>Nothing was changed.</source>
      <translation>Rien n’a été modifié.</translation>
    </message>
    <message>
      <source>Tamo has no database until it starts again.</source>
      <translation>Tamo n’a plus de base de données jusqu’à son prochain démarrage.</translation>
    </message>
    <message>
      <source>The database was not backed up.</source>
      <translation>La base de données n’a pas été sauvegardée.</translation>
    </message>
    <message>
      <source>Your latest changes could not be saved first; please check them.</source>
      <translation>Vos dernières modifications n’ont pas pu être enregistrées au préalable ; veuillez les vérifier.</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database</source>
      <translation>Sauvegarder la base de données E-Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your entire E-Tamo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de restaurer toute votre base de données E-Tamo à partir d’une sauvegarde. Toutes les données existantes seront remplacées de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database</source>
      <translation>Restaurer la base de données E-Tamo</translation>
    </message>
    <message>
      <source>Backup Raw Database</source>
      <translation>Sauvegarder la base de données brute</translation>
    </message>
    <message>
      <source>You are about to replace your entire E-Tamo database with a raw copy of a database file. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de remplacer toute votre base de données E-Tamo par la copie brute d’un fichier de base de données. Toutes les données existantes seront remplacées de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Restore Raw Database</source>
      <translation>Restaurer la base de données brute</translation>
    </message>
    <message>
      <source>Could not restore Tamo database automatically. Please do this by hand. In case of problems, simply contact the Sorel support.</source>
      <translation>La base de données Tamo n’a pas pu être restaurée automatiquement. Veuillez le faire manuellement. En cas de problème, contactez simplement l’assistance Sorel.</translation>
    </message>
    <message>
      <source>You are about to move the database of Tamo's Flatpak edition here. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de déplacer ici la base de données de l’édition Flatpak de Tamo. Toutes les données existantes seront remplacées de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Move…</source>
      <translation>Déplacer…</translation>
    </message>
    <message>
      <source>There is no recovery copy yet. Tamo writes one before every restore that replaces stored data.</source>
      <translation>Il n’existe pas encore de copie de récupération. Tamo en écrit une avant chaque restauration qui remplace des données enregistrées.</translation>
    </message>
    <message>
      <source>Recover Previous Database</source>
      <translation>Récupérer une base de données précédente</translation>
    </message>
    <message>
      <source>You are about to return to the database as it was in “%1”. What is stored now is kept as another recovery copy. Do you want to do that?</source>
      <translation>Vous êtes sur le point de revenir à la base de données telle qu’elle était dans « %1 ». L’état actuel est conservé comme une autre copie de récupération. Voulez-vous continuer ?</translation>
    </message>
    <message>
      <source>Recover…</source>
      <translation>Récupérer…</translation>
    </message>
    <message>
      <source>Warning!</source>
      <translation>Attention !</translation>
    </message>
    <message>
      <source>Without a recovery copy nothing was changed.</source>
      <translation>Sans copie de récupération, rien n’a été modifié.</translation>
    </message>
    <message>
      <source>No file was written: the store could not be read completely.</source>
      <translation>Aucun fichier n’a été écrit : la base n’a pas pu être lue entièrement.</translation>
    </message>
    <message>
      <source>No file was written.</source>
      <translation>Aucun fichier n’a été écrit.</translation>
    </message>
    <message>
      <source>Export Tamo Database As XML</source>
      <translation>Exporter la base de données Tamo en XML</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices</source>
      <translation>Sauvegarder les factures Tamo</translation>
    </message>
    <message>
      <source>Backup Tamo Items</source>
      <translation>Sauvegarder les articles Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de restaurer vos factures Tamo à partir d’une sauvegarde. Toutes les factures existantes seront remplacées de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices</source>
      <translation>Restaurer les factures Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
      <translation>Vous êtes sur le point de restaurer vos articles Tamo à partir d’une sauvegarde. Tous les articles existants seront remplacés de manière irréversible. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
      <source>Restore Tamo Items</source>
      <translation>Restaurer les articles Tamo</translation>
    </message>
    <message>
      <source>The file “%1” could not be restored.</source>
      <translation>Le fichier « %1 » n’a pas pu être restauré.</translation>
    </message>
    <message>
      <source>The records that were listed have been removed. The recovery copy “%1” holds them: File › Recover Previous Database… brings them back (on the command line: tamo --yes recover "%1").</source>
      <translation>Les enregistrements listés ont été supprimés. La copie de récupération « %1 » les contient : Fichier › Récupérer une base de données précédente… les rétablit (en ligne de commande : tamo --yes recover "%1").</translation>
    </message>
    <message numerus="yes">
      <source>%n record(s) carried an identity (uniqueID) that another record already has. Each was given a new one, so that every record can be found by its own.</source>
      <translation>
        <numerusform>%n enregistrement portait une identité (uniqueID) qu’un autre enregistrement a déjà. Il en a reçu une nouvelle, afin que chaque enregistrement soit retrouvé par la sienne.</numerusform>
        <numerusform>%n enregistrements portaient une identité (uniqueID) qu’un autre enregistrement a déjà. Chacun en a reçu une nouvelle, afin que chaque enregistrement soit retrouvé par la sienne.</numerusform>
      </translation>
    </message>
    <message>
      <source>Export As Invoices Dump</source>
      <translation>Exporter en fichier de factures</translation>
    </message>
    <message>
      <source>The integrity of your data is your responsibility, and yours alone. Tamo is just a stupid App and by design it can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
      <translation>L’intégrité de vos données relève de votre responsabilité, et de la vôtre seule. Tamo n’est qu’une simple application : par conception, elle ne peut ni savoir ni se soucier des factures en double, des numéros embrouillés ou de vos jours sans. Alors, rendez-vous service et vérifiez ce que vous faites ici. Voulez-vous tout de même importer la facture ?</translation>
    </message>
    <message>
      <source>Import…</source>
      <translation>Importer…</translation>
    </message>
    <message>
      <source>Import Tamo Document</source>
      <translation>Importer un document Tamo</translation>
    </message>
    <message>
      <source>The document “%1” could not be imported.</source>
      <translation>Le document « %1 » n’a pas pu être importé.</translation>
    </message>
    <message>
      <source>It holds no document.</source>
      <translation>Il ne contient aucun document.</translation>
    </message>
    <message>
      <source>Import Document</source>
      <translation>Importation du document</translation>
    </message>
    <message>
      <source>Tamo, Tamo Documents, and the Tamo Database</source>
      <translation>Tamo, les documents Tamo et la base de données Tamo</translation>
    </message>
    <message>
      <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the 'File Menu' to open documents and to restore the Tamo database.</source>
      <translation>Pour éviter les doublons et les accrocs, et pour garder la base de données intacte, veuillez utiliser le menu « Fichier » pour ouvrir des documents et restaurer la base de données Tamo.</translation>
    </message>
    <message>
      <source>Database</source>
      <translation>Base de données</translation>
    </message>
    <message>
      <source>Move to Another Folder…</source>
      <translation>Déplacer vers un autre dossier…</translation>
    </message>
    <message>
      <source>Move Back to the Default Folder</source>
      <translation>Revenir au dossier par défaut</translation>
    </message>
    <message>
      <source>Choose the Folder for the Database</source>
      <translation>Choisir le dossier de la base de données</translation>
    </message>
    <message>
      <source>Moving first saves a complete backup, then copies the database to the new folder and starts Tamo again there. The old folder keeps its copy.</source>
      <translation>Le déplacement enregistre d'abord une sauvegarde complète, puis copie la base de données dans le nouveau dossier et redémarre Tamo à partir de celui-ci. L'ancien dossier conserve sa copie.</translation>
    </message>
    <message>
      <source>Backups</source>
      <translation>Sauvegardes</translation>
    </message>
    <message>
      <source>The safety copy is written at each start, when the last run ended in order. Before anything replaces stored data wholesale, Tamo keeps a recovery copy of the database; the ten newest are kept.</source>
      <translation>La copie de sécurité est créée à chaque démarrage, lorsque la session précédente s'est terminée normalement. Avant que quoi que ce soit ne remplace en bloc les données enregistrées, Tamo conserve une copie de récupération de la base de données ; les dix plus récentes sont conservées.</translation>
    </message>
    <message>
      <source>The database is in the default folder:
%1</source>
      <translation>La base de données se trouve dans le dossier par défaut :
%1</translation>
    </message>
    <message>
      <source>The database is in a folder you chose:
%1</source>
      <translation>La base de données se trouve dans un dossier que vous avez choisi :
%1</translation>
    </message>
    <message>
      <source>No recovery copies yet.</source>
      <translation>Aucune copie de récupération pour l'instant.</translation>
    </message>
    <message numerus="yes">
      <source>%n recovery copies, the newest “%1”.</source>
      <translation>
        <numerusform>%n copie de récupération, la plus récente « %1 ».</numerusform>
        <numerusform>%n copies de récupération, la plus récente « %1 ».</numerusform>
      </translation>
    </message>
    <message>
      <source>Calendar</source>
      <translation>Calendrier</translation>
    </message>
    <message>
      <source>Choose the date in a calendar</source>
      <translation>Choisir la date dans un calendrier</translation>
    </message>
    <message>
      <source>Choose a Design</source>
      <translation>Choisir une mise en page</translation>
    </message>
    <message>
      <source>Add Design</source>
      <translation>Ajouter une mise en page</translation>
    </message>
    <message>
      <source>New Design</source>
      <translation>Nouvelle mise en page</translation>
    </message>
    <message>
      <source>Delete</source>
      <translation>Supprimer</translation>
    </message>
    <message>
      <source>Delete Design</source>
      <translation>Supprimer la mise en page</translation>
    </message>
    <message>
      <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
      <translation>La suppression d'une mise en page est définitive et irréversible. Voulez-vous vraiment supprimer la mise en page sélectionnée ?</translation>
    </message>
    <message>
      <source>Make Default Design</source>
      <translation>Définir comme mise en page par défaut</translation>
    </message>
    <message>
      <source>There is no open store to import the design into.</source>
      <translation>Aucune base ouverte dans laquelle importer la mise en page.</translation>
    </message>
    <message>
      <source>“%1” cannot be imported: %2</source>
      <translation>Impossible d'importer « %1 » : %2</translation>
    </message>
    <message>
      <source>Import Design</source>
      <translation>Importer une mise en page</translation>
    </message>
    <message>
      <source>Import Tamo Design</source>
      <translation>Importer une mise en page Tamo</translation>
    </message>
    <message>
      <source>Export Tamo Design</source>
      <translation>Exporter une mise en page Tamo</translation>
    </message>
    <message>
      <source>There is no open store for the built-in designs.</source>
      <translation>Aucune base ouverte pour les mises en page intégrées.</translation>
    </message>
    <message>
      <source>Page</source>
      <translation>Page</translation>
    </message>
    <message>
      <source>Row</source>
      <translation>Ligne</translation>
    </message>
    <message>
      <source>Style Sheet</source>
      <translation>Feuille de style</translation>
    </message>
    <message>
      <source>Preview</source>
      <translation>Aperçu</translation>
    </message>
    <message>
      <source>Add</source>
      <translation>Ajouter</translation>
    </message>
    <message>
      <source>Make Default</source>
      <translation>Définir par défaut</translation>
    </message>
    <message>
      <source>Export…</source>
      <translation>Exporter…</translation>
    </message>
    <message>
      <source>Rename Design</source>
      <translation>Renommage de la mise en page</translation>
    </message>
    <message>
      <source>Edit Design</source>
      <translation>Modification de la mise en page</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the design preview.</source>
      <translation>Une erreur grave s'est produite lors de la création de l'aperçu de la mise en page.</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Ouvrir</translation>
    </message>
    <message>
      <source>Unable to start xdg-open for %1.</source>
      <translation>Impossible de lancer xdg-open pour %1.</translation>
    </message>
    <message>
      <source>No application opened %1.</source>
      <translation>Aucune application n'a ouvert %1.</translation>
    </message>
    <message>
      <source>xdg-open ended with code %1.</source>
      <translation>xdg-open s'est terminé avec le code %1.</translation>
    </message>
    <message>
      <source>the records nest too deeply</source>
      <translation>les enregistrements sont trop imbriqués</translation>
    </message>
    <message>
      <source>a record of kind %1 has no entry “%2”</source>
      <translation>un enregistrement de type %1 n’a pas d’entrée « %2 »</translation>
    </message>
    <message>
      <source>%1, entry %2</source>
      <translation>%1, entrée %2</translation>
    </message>
    <message>
      <source>a list of records</source>
      <translation>une liste d’enregistrements</translation>
    </message>
    <message>
      <source>a record of kind “%1” stands where one of kind %2 belongs</source>
      <translation>un enregistrement de type « %1 » se trouve là où il en faut un de type %2</translation>
    </message>
    <message>
      <source>Grant a discount</source>
      <translation>Accorder une remise</translation>
    </message>
    <message>
      <source>Fixed amount</source>
      <translation>Montant fixe</translation>
    </message>
    <message>
      <source>Percentage of the net sum</source>
      <translation>Pourcentage du total net</translation>
    </message>
    <message>
      <source>Kind:</source>
      <translation>Type :</translation>
    </message>
    <message>
      <source>in %</source>
      <translation>en %</translation>
    </message>
    <message>
      <source>Amount:</source>
      <translation>Montant :</translation>
    </message>
    <message>
      <source>Percentage:</source>
      <translation>Pourcentage :</translation>
    </message>
    <message>
      <source>Print Invoice</source>
      <translation>Imprimer la facture</translation>
    </message>
    <message>
      <source>Export Invoice As PDF File</source>
      <translation>Exporter la facture en PDF</translation>
    </message>
    <message>
      <source>Send PDF Invoice As Mail Attachment</source>
      <translation>Envoyer la facture PDF en pièce jointe</translation>
    </message>
    <message>
      <source>Export Document File</source>
      <translation>Exporter le fichier du document</translation>
    </message>
    <message>
      <source>No design available. Please download or create a design.</source>
      <translation>Aucune mise en page disponible. Veuillez télécharger ou créer une mise en page.</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the preview.</source>
      <translation>Une erreur grave s'est produite lors de la création de l'aperçu.</translation>
    </message>
    <message>
      <source>Ooops!</source>
      <translation>Oups !</translation>
    </message>
    <message>
      <source>The document has not been printed into a PDF yet.</source>
      <translation>Le document n'a pas encore été imprimé en PDF.</translation>
    </message>
    <message>
      <source>Export As PDF File</source>
      <translation>Exporter en PDF</translation>
    </message>
    <message>
      <source>Show in Folder</source>
      <translation>Afficher dans le dossier</translation>
    </message>
    <message>
      <source>The file to attach is kept at %1; you can attach it to a message yourself.</source>
      <translation>Le fichier à joindre se trouve dans %1 ; vous pouvez le joindre vous-même à un message.</translation>
    </message>
    <message>
      <source>Export As Tamo Document</source>
      <translation>Exporter en document Tamo</translation>
    </message>
    <message>
      <source>Export As XML Document</source>
      <translation>Exporter en document XML</translation>
    </message>
    <message>
      <source>&amp;Print…</source>
      <translation>&amp;Imprimer…</translation>
    </message>
    <message>
      <source>Export As PD&amp;F…</source>
      <translation>Exporter en &amp;PDF…</translation>
    </message>
    <message>
      <source>PDF</source>
      <translation>PDF</translation>
    </message>
    <message>
      <source>Send PDF by &amp;Mail…</source>
      <translation>Envoyer le PDF par e-&amp;mail…</translation>
    </message>
    <message>
      <source>Mail</source>
      <translation>E-mail</translation>
    </message>
    <message>
      <source>Export As Tamo &amp;Document…</source>
      <translation>Exporter en d&amp;ocument Tamo…</translation>
    </message>
    <message>
      <source>Export As XML &amp;Document…</source>
      <translation>Exporter en d&amp;ocument XML…</translation>
    </message>
    <message>
      <source>&lt;p style='font-size:large'&gt;No document selected&lt;/p&gt;&lt;p&gt;Create an invoice or a quote, or choose one from the list.&lt;/p&gt;</source>
      <translation>&lt;p style='font-size:large'&gt;Aucun document sélectionné&lt;/p&gt;&lt;p&gt;Créez une facture ou un devis, ou choisissez-en un dans la liste.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>This document has been sent. Only its status and payment can change; set the status back to "Created" to edit the rest.</source>
      <translation>Ce document a été envoyé. Seuls son statut et son paiement peuvent encore changer ; remettez le statut sur « Créée » pour modifier le reste.</translation>
    </message>
    <message>
      <source>Document</source>
      <translation>Document</translation>
    </message>
    <message>
      <source>Items</source>
      <translation>Articles</translation>
    </message>
    <message>
      <source>Texts</source>
      <translation>Textes</translation>
    </message>
    <message>
      <source>Invoice</source>
      <translation>Facture</translation>
    </message>
    <message>
      <source>New Invoice</source>
      <translation>Nouvelle facture</translation>
    </message>
    <message>
      <source>New Quote</source>
      <translation>Nouveau devis</translation>
    </message>
    <message>
      <source>Duplicate</source>
      <translation>Dupliquer</translation>
    </message>
    <message>
      <source>Sorry!</source>
      <translation>Désolé !</translation>
    </message>
    <message>
      <source>You can't convert an invoice into a quote.</source>
      <translation>Une facture ne peut pas être convertie en devis.</translation>
    </message>
    <message>
      <source>Convert</source>
      <translation>Convertir</translation>
    </message>
    <message>
      <source>Convert Into Invoice</source>
      <translation>Convertir en facture</translation>
    </message>
    <message>
      <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can't undo this action.</source>
      <translation>Voulez-vous vraiment convertir le devis sélectionné en facture ? Le titre, le texte type et le compteur de numérotation de vos factures changeront aussi, et cette action ne pourra pas être annulée.</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to 'Created' first.</source>
      <translation>La facture sélectionnée est marquée comme déjà envoyée. Si vous devez vraiment la supprimer, remettez d’abord son statut à « Créée ».</translation>
    </message>
    <message>
      <source>Delete Quote</source>
      <translation>Supprimer le devis</translation>
    </message>
    <message>
      <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
      <translation>La suppression d’un devis est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer le devis sélectionné ?</translation>
    </message>
    <message>
      <source>Delete Invoice</source>
      <translation>Supprimer la facture</translation>
    </message>
    <message>
      <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
      <translation>La suppression d’une facture est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer la facture sélectionnée ?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your quote counter so that you won't use the same quote number twice?</source>
      <translation>Voulez-vous que Tamo ajuste automatiquement votre compteur de devis afin de ne pas utiliser deux fois le même numéro de devis ?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your invoice counter so that you won't use the same invoice number twice?</source>
      <translation>Voulez-vous que Tamo ajuste automatiquement votre compteur de factures afin de ne pas utiliser deux fois le même numéro de facture ?</translation>
    </message>
    <message>
      <source>Set Delivery Date</source>
      <translation>Définir la date de livraison</translation>
    </message>
    <message>
      <source>Notification Already Created</source>
      <translation>Notification déjà créée</translation>
    </message>
    <message>
      <source>You've already created a notification for this invoice. Do you really want to create another one?</source>
      <translation>Vous avez déjà créé une notification pour cette facture. Voulez-vous vraiment en créer une autre ?</translation>
    </message>
    <message>
      <source>Schedule Notification</source>
      <translation>Programmer une notification</translation>
    </message>
    <message>
      <source>Number:</source>
      <translation>Numéro :</translation>
    </message>
    <message>
      <source>Subject:</source>
      <translation>Objet :</translation>
    </message>
    <message>
      <source>Date:</source>
      <translation>Date :</translation>
    </message>
    <message>
      <source>Status and Payment</source>
      <translation>Statut et paiement</translation>
    </message>
    <message>
      <source>Status:</source>
      <translation>Statut :</translation>
    </message>
    <message>
      <source>Paid amount:</source>
      <translation>Montant payé :</translation>
    </message>
    <message>
      <source>Payment date:</source>
      <translation>Date de paiement :</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>Livraison</translation>
    </message>
    <message>
      <source>Dispatched</source>
      <translation>Expédié</translation>
    </message>
    <message>
      <source>Show the delivery date and note number on the document</source>
      <translation>Afficher la date de livraison et le numéro de bon de livraison sur le document</translation>
    </message>
    <message>
      <source>Delivery note no.:</source>
      <translation>N° de bon de livraison :</translation>
    </message>
    <message>
      <source>Today</source>
      <translation>Aujourd'hui</translation>
    </message>
    <message>
      <source>Set the delivery date to today</source>
      <translation>Régler la date de livraison sur aujourd'hui</translation>
    </message>
    <message>
      <source>Delivery date:</source>
      <translation>Date de livraison :</translation>
    </message>
    <message>
      <source>Valid until:</source>
      <translation>Valable jusqu'au :</translation>
    </message>
    <message>
      <source>Due date:</source>
      <translation>Échéance :</translation>
    </message>
    <message>
      <source>New Template</source>
      <translation>Nouveau modèle</translation>
    </message>
    <message>
      <source>Apply Template</source>
      <translation>Appliquer le modèle</translation>
    </message>
    <message>
      <source>Delete Template</source>
      <translation>Supprimer le modèle</translation>
    </message>
    <message>
      <source>Edit Line</source>
      <translation>Modifier la ligne</translation>
    </message>
    <message>
      <source>The file passes the EN 16931 and XRechnung rules.</source>
      <translation>Le fichier respecte les règles EN 16931 et XRechnung.</translation>
    </message>
    <message>
      <source>Notes:</source>
      <translation>Remarques :</translation>
    </message>
    <message>
      <source>1 rule broken: the recipient's validator will likely reject this file.</source>
      <translation>1 règle enfreinte : le validateur du destinataire rejettera probablement ce fichier.</translation>
    </message>
    <message>
      <source>%1 rules broken: the recipient's validator will likely reject this file.</source>
      <translation>%1 règles enfreintes : le validateur du destinataire rejettera probablement ce fichier.</translation>
    </message>
    <message>
      <source>Double-click a finding to go to what to change.</source>
      <translation>Double-cliquez sur un résultat pour accéder à ce qu'il faut modifier.</translation>
    </message>
    <message>
      <source>Change: %1</source>
      <translation>À modifier : %1</translation>
    </message>
    <message>
      <source>Export E-Invoice…</source>
      <translation>Exporter la facture électronique…</translation>
    </message>
    <message>
      <source>E-Invoice</source>
      <translation>Facture électronique</translation>
    </message>
    <message>
      <source>E-Invoice Details…</source>
      <translation>Détails de la facture électronique…</translation>
    </message>
    <message>
      <source>E-Invoice Details</source>
      <translation>Détails de la facture électronique</translation>
    </message>
    <message>
      <source>About E-Invoicing…</source>
      <translation>À propos de la facturation électronique…</translation>
    </message>
    <message>
      <source>Send E-Invoice…</source>
      <translation>Envoyer la facture électronique…</translation>
    </message>
    <message>
      <source>Write the conformant file</source>
      <translation>Générer le fichier conforme</translation>
    </message>
    <message>
      <source>Export the selected invoice as an XRechnung e-invoice (UBL XML file). If the preferences ask for it, the invoice is marked as sent.</source>
      <translation>Exporter la facture sélectionnée en tant que facture électronique XRechnung (fichier XML UBL). Si les préférences le demandent, la facture est marquée comme envoyée.</translation>
    </message>
    <message>
      <source>Discount and shipping as allowances and charges per tax category, lines without taxes in an exemption category, totals computed from the lines: the structure the EN 16931 rules require. The standard file is written as Tamo always wrote it.</source>
      <translation>Remise et frais de port sous forme de remises et de majorations par catégorie de taxe, lignes sans taxe dans une catégorie d'exonération, totaux calculés à partir des lignes : la structure qu'exigent les règles EN 16931. Le fichier standard est généré comme Tamo l'a toujours fait.</translation>
    </message>
    <message>
      <source>Why they are untaxed, e.g. Kleinunternehmer gemäß § 19 UStG</source>
      <translation>Motif de l'absence de taxe, p. ex. Kleinunternehmer gemäß § 19 UStG</translation>
    </message>
    <message>
      <source>Lines without taxes:</source>
      <translation>Lignes sans taxe :</translation>
    </message>
    <message>
      <source>Exemption reason:</source>
      <translation>Motif d'exonération :</translation>
    </message>
    <message>
      <source>Rule check</source>
      <translation>Vérification des règles</translation>
    </message>
    <message>
      <source>Send by Mail…</source>
      <translation>Envoyer par e-mail…</translation>
    </message>
    <message>
      <source>Preparing the document…</source>
      <translation>Préparation du document…</translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n page</numerusform>
        <numerusform>%n pages</numerusform>
      </translation>
    </message>
    <message>
      <source>Import Design?</source>
      <translation>Importer la mise en page ?</translation>
    </message>
    <message>
      <source>"%1" is a Tamo design. Do you want to add it to your designs?</source>
      <translation>« %1 » est une mise en page Tamo. Voulez-vous l'ajouter à vos mises en page ?</translation>
    </message>
    <message>
      <source>Another Tamo already listens at %1.</source>
      <translation>Un autre Tamo est déjà à l’écoute sur %1.</translation>
    </message>
    <message>
      <source>Unable to listen at %1.</source>
      <translation>Impossible d’écouter sur %1.</translation>
    </message>
    <message>
      <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
      <translation>ÉCHEC ! LA MISE EN PAGE SÉLECTIONNÉE EST DÉFECTUEUSE, CORROMPUE OU ENDOMMAGÉE ! VOUS DEVEZ LA CORRIGER !</translation>
    </message>
    <message>
      <source>Invoice title</source>
      <translation>Titre de facture</translation>
    </message>
    <message>
      <source>Quote title</source>
      <translation>Titre de devis</translation>
    </message>
    <message>
      <source>Reminder title</source>
      <translation>Titre de relance</translation>
    </message>
    <message>
      <source>Delivery slip title</source>
      <translation>Titre de bon de livraison</translation>
    </message>
    <message>
      <source>Due date</source>
      <translation>Échéance</translation>
    </message>
    <message>
      <source>Valid until (quotes)</source>
      <translation>Valable jusqu'au (devis)</translation>
    </message>
    <message>
      <source>Overdue since (reminders)</source>
      <translation>En retard depuis (relances)</translation>
    </message>
    <message>
      <source>Invoice number</source>
      <translation>Numéro de facture</translation>
    </message>
    <message>
      <source>Quote number</source>
      <translation>Numéro de devis</translation>
    </message>
    <message>
      <source>Client number</source>
      <translation>Numéro client</translation>
    </message>
    <message>
      <source>Line number</source>
      <translation>Numéro de ligne</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>Description</translation>
    </message>
    <message>
      <source>Article number</source>
      <translation>Référence article</translation>
    </message>
    <message>
      <source>Quantity</source>
      <translation>Quantité</translation>
    </message>
    <message>
      <source>Unit</source>
      <translation>Unité</translation>
    </message>
    <message>
      <source>Unit price</source>
      <translation>Prix unitaire</translation>
    </message>
    <message>
      <source>Net</source>
      <translation>Montant net</translation>
    </message>
    <message>
      <source>Subtotal</source>
      <translation>Sous-total</translation>
    </message>
    <message>
      <source>Taxes</source>
      <translation>Taxes</translation>
    </message>
    <message>
      <source>Quotes</source>
      <translation>Devis</translation>
    </message>
    <message>
      <source>Clients</source>
      <translation>Clients</translation>
    </message>
    <message>
      <source>Reminders</source>
      <translation>Relances</translation>
    </message>
    <message>
      <source>Delivery slips</source>
      <translation>Bons de livraison</translation>
    </message>
    <message>
      <source>Numbers and Dates</source>
      <translation>Numéros et dates</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>Libellés</translation>
    </message>
    <message>
      <source>Numbers</source>
      <translation>Numéros</translation>
    </message>
    <message>
      <source>Pattern</source>
      <translation>Modèle</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>Décalage</translation>
    </message>
    <message>
      <source>Number new ones at once</source>
      <translation>Numéroter dès la création</translation>
    </message>
    <message>
      <source>%COUNT% is the number of documents so far plus the offset, plus 1; %YEAR%, %MONTH% and %DAY% are today's. Raise the offset to continue from numbers written elsewhere.</source>
      <translation>%COUNT% est le nombre de documents existants plus le décalage, plus 1 ; %YEAR%, %MONTH% et %DAY% correspondent à la date du jour. Augmentez le décalage pour poursuivre une numérotation commencée ailleurs.</translation>
    </message>
    <message>
      <source>Dates</source>
      <translation>Dates</translation>
    </message>
    <message>
      <source>7 days</source>
      <translation>7 jours</translation>
    </message>
    <message>
      <source>14 days</source>
      <translation>14 jours</translation>
    </message>
    <message>
      <source>21 days</source>
      <translation>21 jours</translation>
    </message>
    <message>
      <source>28 days</source>
      <translation>28 jours</translation>
    </message>
    <message>
      <source>New invoices are due in</source>
      <translation>Échéance des nouvelles factures</translation>
    </message>
    <message>
      <source>New quotes are valid for</source>
      <translation>Validité des nouveaux devis</translation>
    </message>
    <message>
      <source>Date pattern:</source>
      <translation>Format de date :</translation>
    </message>
    <message>
      <source>Today:</source>
      <translation>Aujourd'hui :</translation>
    </message>
    <message>
      <source>%DAY%, %MONTHSHORT% and %YEARSHORT% print two digits, %YEARLONG% four, %MONTHLONG% the month's name.</source>
      <translation>%DAY%, %MONTHSHORT% et %YEARSHORT% s'impriment sur deux chiffres, %YEARLONG% sur quatre, %MONTHLONG% donne le nom du mois.</translation>
    </message>
    <message>
      <source>Documents</source>
      <translation>Documents</translation>
    </message>
    <message>
      <source>Mark an invoice as sent when it is printed, saved, mailed or exported as an e-invoice</source>
      <translation>Marquer une facture comme envoyée lorsqu'elle est imprimée, enregistrée, envoyée par e-mail ou exportée en facture électronique</translation>
    </message>
    <message>
      <source>Lines are sorted by:</source>
      <translation>Tri des lignes :</translation>
    </message>
    <message>
      <source>The order they are stored in</source>
      <translation>Dans l'ordre d'enregistrement</translation>
    </message>
    <message>
      <source>The order of entry</source>
      <translation>Dans l'ordre de saisie</translation>
    </message>
    <message>
      <source>Conditions:</source>
      <translation>Conditions :</translation>
    </message>
    <message>
      <source>Further text:</source>
      <translation>Texte complémentaire :</translation>
    </message>
    <message>
      <source>Footer:</source>
      <translation>Pied de page :</translation>
    </message>
    <message>
      <source>Texts of new</source>
      <translation>Textes par défaut des</translation>
    </message>
    <message>
      <source>New documents start with these texts; reminders and delivery slips show them on their sheet. The footer usually holds your bank details and registration numbers.</source>
      <translation>Les nouveaux documents commencent avec ces textes ; les relances et les bons de livraison les affichent sur leur feuille. Le pied de page contient généralement vos coordonnées bancaires et vos numéros d'immatriculation.</translation>
    </message>
    <message>
      <source>Mail message:</source>
      <translation>Message de l'e-mail :</translation>
    </message>
    <message>
      <source>The words the designs print around your values, in the language of your documents.</source>
      <translation>Les mots que les mises en page impriment autour de vos valeurs, dans la langue de vos documents.</translation>
    </message>
    <message>
      <source>(none)</source>
      <translation>(aucun)</translation>
    </message>
    <message>
      <source>(the pattern prints nothing)</source>
      <translation>(le modèle n'imprime rien)</translation>
    </message>
    <message>
      <source>Add Line</source>
      <translation>Ajouter une ligne</translation>
    </message>
    <message>
      <source>Search the catalog</source>
      <translation>Rechercher dans le catalogue</translation>
    </message>
    <message>
      <source>Article no.</source>
      <translation>Réf. article</translation>
    </message>
    <message>
      <source>Price</source>
      <translation>Prix</translation>
    </message>
    <message>
      <source>Use Entry</source>
      <translation>Utiliser l'entrée</translation>
    </message>
    <message>
      <source>New Line</source>
      <translation>Nouvelle ligne</translation>
    </message>
    <message>
      <source>Catalog</source>
      <translation>Catalogue</translation>
    </message>
    <message>
      <source>Ledrix asked for invoices of the kind "%1", which Tamo does not know.</source>
      <translation>Ledrix a demandé des factures du type « %1 », que Tamo ne connaît pas.</translation>
    </message>
    <message>
      <source>Ledrix asked for the dates "%1" and "%2", which Tamo cannot read.</source>
      <translation>Ledrix a demandé les dates « %1 » et « %2 », que Tamo ne sait pas lire.</translation>
    </message>
    <message>
      <source>Could not generate import data.
Please check your import settings in Ledrix.</source>
      <translation>Impossible de générer les données d'importation.
Veuillez vérifier vos paramètres d'importation dans Ledrix.</translation>
    </message>
    <message>
      <source>Could not write the import list for Ledrix.</source>
      <translation>Impossible d'écrire la liste d'importation pour Ledrix.</translation>
    </message>
    <message>
      <source>Send Invoices To Ledrix</source>
      <translation>Envoyer les factures vers Ledrix</translation>
    </message>
    <message>
      <source>Send Invoices To Kelvane</source>
      <translation>Envoyer les factures vers Kelvane</translation>
    </message>
    <message>
      <source>Unable to create the folder %1.</source>
      <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
      <source>Could not write Ledrix/Kelvane export data.</source>
      <translation>Impossible d'écrire les données d'exportation pour Ledrix/Kelvane.</translation>
    </message>
    <message>
      <source>Ledrix/Kelvane export file couldn't be opened. Please ensure that Ledrix or Kelvane is installed on your computer and running.</source>
      <translation>Impossible d'ouvrir le fichier d'exportation Ledrix/Kelvane. Veuillez vérifier que Ledrix ou Kelvane est installé sur votre ordinateur et en cours d'exécution.</translation>
    </message>
    <message>
      <source>'Send To' is obsolete. Please directly import invoices from within Ledrix.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</source>
      <translation>« Envoyer vers » est obsolète. Veuillez importer les factures directement depuis Ledrix.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</translation>
    </message>
    <message>
      <source>Website</source>
      <translation>Site web</translation>
    </message>
    <message>
      <source>to</source>
      <translation>au</translation>
    </message>
    <message>
      <source>Every sent invoice</source>
      <translation>Toutes les factures envoyées</translation>
    </message>
    <message>
      <source>Paid invoices</source>
      <translation>Factures payées</translation>
    </message>
    <message>
      <source>Overdue invoices</source>
      <translation>Factures en retard</translation>
    </message>
    <message>
      <source>One summary line per invoice</source>
      <translation>Une ligne récapitulative par facture</translation>
    </message>
    <message>
      <source>Every line of each invoice</source>
      <translation>Chaque ligne de chaque facture</translation>
    </message>
    <message>
      <source>Dated from:</source>
      <translation>Datées du :</translation>
    </message>
    <message>
      <source>Invoices:</source>
      <translation>Factures :</translation>
    </message>
    <message>
      <source>Lines:</source>
      <translation>Lignes :</translation>
    </message>
    <message>
      <source>Send</source>
      <translation>Envoyer</translation>
    </message>
    <message>
      <source>No invoice matches.</source>
      <translation>Aucune facture ne correspond.</translation>
    </message>
    <message>
      <source>1 invoice will be sent.</source>
      <translation>1 facture sera envoyée.</translation>
    </message>
    <message>
      <source>%1 invoices will be sent.</source>
      <translation>%1 factures seront envoyées.</translation>
    </message>
    <message>
      <source>Second line (optional)</source>
      <translation>Deuxième ligne (facultative)</translation>
    </message>
    <message>
      <source>e.g. h, pcs</source>
      <translation>p. ex. h, pce</translation>
    </message>
    <message>
      <source>Unit:</source>
      <translation>Unité :</translation>
    </message>
    <message>
      <source>Quantity:</source>
      <translation>Quantité :</translation>
    </message>
    <message>
      <source>Unit price:</source>
      <translation>Prix unitaire :</translation>
    </message>
    <message>
      <source>Article no.:</source>
      <translation>Réf. article :</translation>
    </message>
    <message>
      <source>Note:</source>
      <translation>Note :</translation>
    </message>
    <message>
      <source>Taxes:</source>
      <translation>Taxes :</translation>
    </message>
    <message>
      <source>%1 (%2 %)</source>
      <translation>%1 (%2 %)</translation>
    </message>
    <message>
      <source>Tax %1</source>
      <translation>Taxe %1</translation>
    </message>
    <message>
      <source>Delete Item</source>
      <translation>Supprimer la ligne</translation>
    </message>
    <message>
      <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
      <translation>La suppression d’une ligne est définitive et ne peut pas être annulée. Voulez-vous vraiment supprimer la ligne sélectionnée ?</translation>
    </message>
    <message>
      <source>Delete Line</source>
      <translation>Suppression de la ligne</translation>
    </message>
    <message>
      <source>Default Title</source>
      <translation>Titre par défaut</translation>
    </message>
    <message>
      <source>Edit Shipping</source>
      <translation>Modification des frais de port</translation>
    </message>
    <message>
      <source>Choose Shipping</source>
      <translation>Choix des frais de port</translation>
    </message>
    <message>
      <source>Edit Discount</source>
      <translation>Modification de la remise</translation>
    </message>
    <message>
      <source>%1 %2 %</source>
      <translation>%1 %2 %</translation>
    </message>
    <message>
      <source>Article no. %1</source>
      <translation>Réf. article %1</translation>
    </message>
    <message>
      <source>Qty</source>
      <translation>Qté</translation>
    </message>
    <message>
      <source>Unit Price</source>
      <translation>Prix unitaire</translation>
    </message>
    <message>
      <source>Add Line…</source>
      <translation>Ajouter une ligne…</translation>
    </message>
    <message>
      <source>Edit…</source>
      <translation>Modifier…</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>Retirer</translation>
    </message>
    <message>
      <source>Shipping…</source>
      <translation>Frais de port…</translation>
    </message>
    <message>
      <source>Discount…</source>
      <translation>Remise…</translation>
    </message>
    <message>
      <source>Sort</source>
      <translation>Trier</translation>
    </message>
    <message>
      <source>Order of the lines</source>
      <translation>Ordre des lignes</translation>
    </message>
    <message>
      <source>In Order of Entry</source>
      <translation>Dans l'ordre de saisie</translation>
    </message>
    <message>
      <source>By Title</source>
      <translation>Par titre</translation>
    </message>
    <message>
      <source>By Amount</source>
      <translation>Par montant</translation>
    </message>
    <message>
      <source>As Stored</source>
      <translation>Dans l'ordre d'enregistrement</translation>
    </message>
    <message>
      <source>the Tamo window (process %1, started as “%2”)</source>
      <translation>la fenêtre de Tamo (processus %1, lancé par « %2 »)</translation>
    </message>
    <message>
      <source>the command “%2” (process %1)</source>
      <translation>la commande « %2 » (processus %1)</translation>
    </message>
    <message>
      <source> on the computer %1</source>
      <translation> sur l’ordinateur %1</translation>
    </message>
    <message>
      <source>Choose…</source>
      <translation>Choisir…</translation>
    </message>
    <message>
      <source>No logo</source>
      <translation>Aucun logo</translation>
    </message>
    <message>
      <source>Designs that show a logo print a notice in its place until you choose one.</source>
      <translation>Les mises en page qui affichent un logo impriment un avertissement à sa place tant que vous n'en avez pas choisi un.</translation>
    </message>
    <message>
      <source>Choose a Logo</source>
      <translation>Choisir un logo</translation>
    </message>
    <message>
      <source>Images (%1)</source>
      <translation>Images (%1)</translation>
    </message>
    <message>
      <source>%1 is missing; it comes with the package xdg-utils.</source>
      <translation>%1 est introuvable ; il est fourni par le paquet xdg-utils.</translation>
    </message>
    <message>
      <source>%1 ended with code %2.</source>
      <translation>%1 s'est terminé avec le code %2.</translation>
    </message>
    <message>
      <source>All Documents</source>
      <translation>Tous les documents</translation>
    </message>
    <message>
      <source>Open Invoices</source>
      <translation>Factures ouvertes</translation>
    </message>
    <message>
      <source>Overdue and Partially Paid</source>
      <translation>En retard et partiellement payées</translation>
    </message>
    <message>
      <source>Paid Invoices</source>
      <translation>Factures payées</translation>
    </message>
    <message>
      <source>Last 12 Hours</source>
      <translation>12 dernières heures</translation>
    </message>
    <message>
      <source>Last Few Days</source>
      <translation>Derniers jours</translation>
    </message>
    <message>
      <source>Last Two Weeks</source>
      <translation>Deux dernières semaines</translation>
    </message>
    <message>
      <source>Last Six Months</source>
      <translation>Six derniers mois</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>&amp;Fichier</translation>
    </message>
    <message>
      <source>New &amp;Invoice</source>
      <translation>Nouvelle &amp;facture</translation>
    </message>
    <message>
      <source>New &amp;Quote</source>
      <translation>Nouveau &amp;devis</translation>
    </message>
    <message>
      <source>&amp;Save</source>
      <translation>&amp;Enregistrer</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>&amp;Quitter</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>&amp;Édition</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Annuler</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Rétablir</translation>
    </message>
    <message>
      <source>&amp;Find…</source>
      <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>&amp;Affichage</translation>
    </message>
    <message>
      <source>&amp;Document</source>
      <translation>&amp;Document</translation>
    </message>
    <message>
      <source>&amp;Client</source>
      <translation>&amp;Client</translation>
    </message>
    <message>
      <source>&amp;Items</source>
      <translation>&amp;Articles</translation>
    </message>
    <message>
      <source>&amp;Texts</source>
      <translation>&amp;Textes</translation>
    </message>
    <message>
      <source>D&amp;uplicate</source>
      <translation>D&amp;upliquer</translation>
    </message>
    <message>
      <source>Duplicate with &amp;Lines</source>
      <translation>Dupliquer avec les &amp;lignes</translation>
    </message>
    <message>
      <source>&amp;Convert to Invoice</source>
      <translation>&amp;Convertir en facture</translation>
    </message>
    <message>
      <source>Choose C&amp;lient…</source>
      <translation>C&amp;hoisir le client…</translation>
    </message>
    <message>
      <source>&amp;Add Line…</source>
      <translation>&amp;Ajouter une ligne…</translation>
    </message>
    <message>
      <source>S&amp;hipping…</source>
      <translation>Frais de &amp;port…</translation>
    </message>
    <message>
      <source>Disc&amp;ount…</source>
      <translation>Remi&amp;se…</translation>
    </message>
    <message>
      <source>Set Deli&amp;very Date</source>
      <translation>Définir la date de li&amp;vraison</translation>
    </message>
    <message>
      <source>&amp;Reminder…</source>
      <translation>&amp;Relance…</translation>
    </message>
    <message>
      <source>Delivery &amp;Slip…</source>
      <translation>&amp;Bon de livraison…</translation>
    </message>
    <message>
      <source>Due-Date &amp;Notification…</source>
      <translation>&amp;Notification d'échéance…</translation>
    </message>
    <message>
      <source>Main</source>
      <translation>Principale</translation>
    </message>
    <message>
      <source>&amp;Filter</source>
      <translation>&amp;Filtre</translation>
    </message>
    <message>
      <source>Filter the list</source>
      <translation>Filtrer la liste</translation>
    </message>
    <message>
      <source>&amp;Undo %1</source>
      <translation>&amp;Annuler « %1 »</translation>
    </message>
    <message>
      <source>&amp;Redo %1</source>
      <translation>&amp;Rétablir « %1 »</translation>
    </message>
    <message>
      <source>Reminder</source>
      <translation>Relance</translation>
    </message>
    <message>
      <source>Delivery Slip</source>
      <translation>Bon de livraison</translation>
    </message>
    <message>
      <source>Read-only: %1</source>
      <translation>Lecture seule : %1</translation>
    </message>
    <message>
      <source>%1 (read-only)</source>
      <translation>%1 (lecture seule)</translation>
    </message>
    <message>
      <source>Invoices: %1   Quotes: %2   Total: %3   Paid: %4   Due: %5</source>
      <translation>Factures : %1   Devis : %2   Total : %3   Payé : %4   Dû : %5</translation>
    </message>
    <message>
      <source>Due-Date Notification</source>
      <translation>Notification d'échéance</translation>
    </message>
    <message>
      <source>Optional message</source>
      <translation>Message facultatif</translation>
    </message>
    <message>
      <source>Message:</source>
      <translation>Message :</translation>
    </message>
    <message>
      <source>Remind me on:</source>
      <translation>Me rappeler le :</translation>
    </message>
    <message>
      <source>Schedule</source>
      <translation>Programmer</translation>
    </message>
    <message>
      <source>The page renderer stopped unexpectedly.</source>
      <translation>Le moteur de rendu des pages s'est arrêté de manière inattendue.</translation>
    </message>
    <message>
      <source>The page renderer was stopped and cannot start again in this process.</source>
      <translation>Le moteur de rendu des pages a été arrêté et ne peut pas redémarrer dans ce processus.</translation>
    </message>
    <message>
      <source>The page could not be handed to the renderer: %1</source>
      <translation>Impossible de transmettre la page au moteur de rendu : %1</translation>
    </message>
    <message>
      <source>The page could not be loaded.</source>
      <translation>Impossible de charger la page.</translation>
    </message>
    <message>
      <source>The page could not be printed.</source>
      <translation>Impossible d'imprimer la page.</translation>
    </message>
    <message>
      <source>The design's layout ran away: it made %1 pages, more than the %2 that are printed. Check the design's style sheet.</source>
      <translation>La mise en page s'est emballée : elle a produit %1 pages, plus que les %2 qui sont imprimées. Vérifiez la feuille de style de la mise en page.</translation>
    </message>
    <message>
      <source>The page took longer than %1 seconds to print, so it was stopped. The design's layout may be running away; check its style sheet.</source>
      <translation>L'impression de la page a pris plus de %1 secondes ; elle a donc été interrompue. La mise en page s'emballe peut-être ; vérifiez sa feuille de style.</translation>
    </message>
    <message>
      <source>&amp;Preferences…</source>
      <translation>&amp;Préférences…</translation>
    </message>
    <message>
      <source>Setup &amp;Assistant…</source>
      <translation>Assistant de &amp;configuration…</translation>
    </message>
    <message>
      <source>no document is selected</source>
      <translation>aucun document n’est sélectionné</translation>
    </message>
    <message>
      <source>step 2: the invoice amount is missing or 0</source>
      <translation>étape 2 : le montant de la facture manque ou vaut 0</translation>
    </message>
    <message>
      <source>step 3: the invoice has no items</source>
      <translation>étape 3 : la facture n’a aucune ligne</translation>
    </message>
    <message>
      <source>step 4: discounts are not calculated before taxes (beforeTaxesBool)</source>
      <translation>étape 4 : les remises ne sont pas calculées avant taxes (beforeTaxesBool)</translation>
    </message>
    <message>
      <source>step 5: the supplier setting %1 is empty</source>
      <translation>étape 5 : le réglage fournisseur %1 est vide</translation>
    </message>
    <message>
      <source>step 6: the invoice's %1 is empty</source>
      <translation>étape 6 : %1 de la facture est vide</translation>
    </message>
    <message>
      <source>Paper and printing</source>
      <translation>Papier et impression</translation>
    </message>
    <message>
      <source>Paper size:</source>
      <translation>Format du papier :</translation>
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
      <translation>Imprimer sans marges (pour les mises en page qui définissent les leurs)</translation>
    </message>
    <message>
      <source>Printing:</source>
      <translation>Impression :</translation>
    </message>
    <message>
      <source>Print at once</source>
      <translation>Imprimer directement</translation>
    </message>
    <message>
      <source>Show the print dialog first</source>
      <translation>Afficher d'abord la boîte de dialogue d'impression</translation>
    </message>
    <message>
      <source>Files and notifications</source>
      <translation>Fichiers et notifications</translation>
    </message>
    <message>
      <source>Save a document file as:</source>
      <translation>Enregistrer un fichier de document au format :</translation>
    </message>
    <message>
      <source>Tamo document (.tamo)</source>
      <translation>Document Tamo (.tamo)</translation>
    </message>
    <message>
      <source>XML property list (.xml)</source>
      <translation>Liste de propriétés XML (.xml)</translation>
    </message>
    <message>
      <source>Play a sound with due-date notifications</source>
      <translation>Émettre un son avec les notifications d'échéance</translation>
    </message>
    <message>
      <source>Region</source>
      <translation>Région</translation>
    </message>
    <message>
      <source>No region is set for this system, so numbers are typed and shown as %1.</source>
      <translation>Aucune région n'est définie pour ce système ; les nombres sont donc saisis et affichés au format %1.</translation>
    </message>
    <message>
      <source>Numbers are typed and shown as the system's region has it: %1, for example %2.</source>
      <translation>Les nombres sont saisis et affichés selon la région du système : %1, par exemple %2.</translation>
    </message>
    <message>
      <source>Document dates follow the date pattern of the Invoice pane.</source>
      <translation>Les dates des documents suivent le format de date du panneau Facture.</translation>
    </message>
    <message>
      <source>Show Delivery Slip</source>
      <translation>Afficher le bon de livraison</translation>
    </message>
    <message>
      <source>Show Reminder</source>
      <translation>Afficher la relance</translation>
    </message>
    <message>
      <source>Preview (updating…)</source>
      <translation>Aperçu (mise à jour…)</translation>
    </message>
    <message>
      <source>Choose &amp;Design…</source>
      <translation>Choisir la mise en pa&amp;ge…</translation>
    </message>
    <message>
      <source>Document &amp;Templates…</source>
      <translation>&amp;Modèles de document…</translation>
    </message>
    <message>
      <source>Preview as Re&amp;minder</source>
      <translation>Aperçu en tant que relanc&amp;e</translation>
    </message>
    <message>
      <source>Preview as Delivery Sli&amp;p</source>
      <translation>Aperçu en tant que bon de l&amp;ivraison</translation>
    </message>
    <message>
      <source>Refresh Pre&amp;view</source>
      <translation>Ac&amp;tualiser l'aperçu</translation>
    </message>
    <message>
      <source>The report is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
      <translation>Le rapport porte sur les factures affichées dans la fenêtre principale de Tamo. Vous pouvez ainsi, par exemple, rechercher un client pour ne voir le rapport que de ce client, ou préfiltrer toutes vos factures pour n'obtenir un rapport que des factures en retard.</translation>
    </message>
    <message>
      <source>Sales &amp;Report</source>
      <translation>&amp;Rapport des ventes</translation>
    </message>
    <message>
      <source>Report</source>
      <translation>Rapport</translation>
    </message>
    <message>
      <source>Counts and sums of the listed invoices</source>
      <translation>Nombres et sommes des factures affichées</translation>
    </message>
    <message>
      <source>Print &amp;Account Book…</source>
      <translation>Imprimer le livre de &amp;comptes…</translation>
    </message>
    <message>
      <source>&amp;Reports</source>
      <translation>&amp;Rapports</translation>
    </message>
    <message>
      <source>Account Book</source>
      <translation>Livre de comptes</translation>
    </message>
    <message>
      <source>Print Account Book</source>
      <translation>Imprimer le livre de comptes</translation>
    </message>
    <message>
      <source>The account book could not be printed.</source>
      <translation>Impossible d'imprimer le livre de comptes.</translation>
    </message>
    <message>
      <source>Date Range…</source>
      <translation>Période…</translation>
    </message>
    <message>
      <source>Print…</source>
      <translation>Imprimer…</translation>
    </message>
    <message>
      <source>Sales Report</source>
      <translation>Rapport des ventes</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>Actualiser</translation>
    </message>
    <message>
      <source>Documents of the main list: %1</source>
      <translation>Documents de la liste principale : %1</translation>
    </message>
    <message>
      <source>All dates</source>
      <translation>Toutes les dates</translation>
    </message>
    <message>
      <source>%1 to %2</source>
      <translation>Du %1 au %2</translation>
    </message>
    <message>
      <source>Only documents dated in this range</source>
      <translation>Uniquement les documents datés de cette période</translation>
    </message>
    <message>
      <source>From:</source>
      <translation>Du :</translation>
    </message>
    <message>
      <source>To:</source>
      <translation>Au :</translation>
    </message>
    <message>
      <source>Print Sales Report</source>
      <translation>Imprimer le rapport des ventes</translation>
    </message>
    <message>
      <source>%1 is marked as sent</source>
      <translation>%1 est marqué comme envoyé</translation>
    </message>
    <message>
      <source>Type a whole number, such as 0 or 12.</source>
      <translation>Saisissez un nombre entier, par exemple 0 ou 12.</translation>
    </message>
    <message>
      <source>Type a percentage between 0 and 100, such as %1 or %2.</source>
      <translation>Saisissez un pourcentage entre 0 et 100, par exemple %1 ou %2.</translation>
    </message>
    <message>
      <source>Your settings could not be saved to “%1”.</source>
      <translation>Vos réglages n’ont pas pu être enregistrés dans « %1 ».</translation>
    </message>
    <message>
      <source>Continue…</source>
      <translation>Continuer…</translation>
    </message>
    <message>
      <source>It seems that you've already setup E-Tamo and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
      <translation>Il semble que vous ayez déjà configuré E-Tamo et exécuté l'assistant de configuration au moins une fois. Le relancer supprimera toutes vos personnalisations et les remplacera par les valeurs par défaut. Voulez-vous vraiment continuer ?</translation>
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
      <translation>Une nouvelle facture s'intitule « %1 », est numérotée comme %2, en %3, avec %4, et s'imprime sur du papier %5.</translation>
    </message>
    <message>
      <source>no taxes</source>
      <translation>aucune taxe</translation>
    </message>
    <message>
      <source> and </source>
      <translation> et </translation>
    </message>
    <message numerus="yes">
      <source>E-invoices still need %n supplier detail(s) in Edit → Preferences → Company.</source>
      <translation>
        <numerusform>Les factures électroniques nécessitent encore %n information fournisseur dans Édition → Préférences → Entreprise.</numerusform>
        <numerusform>Les factures électroniques nécessitent encore %n informations fournisseur dans Édition → Préférences → Entreprise.</numerusform>
      </translation>
    </message>
    <message>
      <source>Yes, please!</source>
      <translation>Oui, volontiers !</translation>
    </message>
    <message>
      <source>RTFM</source>
      <translation>Lisez le manuel</translation>
    </message>
    <message>
      <source>Would you like to take a quick look at the illustrated and easy-to-understand instructions before you create your first invoice?</source>
      <translation>Souhaitez-vous jeter un œil aux instructions illustrées et faciles à comprendre avant de créer votre première facture ?</translation>
    </message>
    <message>
      <source>No, I prefer to suffer in silence.</source>
      <translation>Non, je préfère souffrir en silence.</translation>
    </message>
    <message>
      <source>Back</source>
      <translation>Retour</translation>
    </message>
    <message>
      <source>Continue</source>
      <translation>Continuer</translation>
    </message>
    <message>
      <source>Setup Assistant</source>
      <translation>Assistant de configuration</translation>
    </message>
    <message>
      <source>Welcome to Tamo</source>
      <translation>Bienvenue dans Tamo</translation>
    </message>
    <message>
      <source>In which language do you write your invoices? Tamo fills its settings with starting values for it: the labels and texts of your documents, number patterns, date format, currency, taxes and paper size. You can change each of them later in the preferences.</source>
      <translation>Dans quelle langue rédigez-vous vos factures ? Tamo remplit ses paramètres avec des valeurs de départ adaptées : les libellés et textes de vos documents, les modèles de numérotation, le format de date, la devise, les taxes et le format du papier. Vous pourrez modifier chacun d'eux plus tard dans les préférences.</translation>
    </message>
    <message>
      <source>Your Business</source>
      <translation>Votre entreprise</translation>
    </message>
    <message>
      <source>This is how your documents name you. Everything can be changed later under Edit → Preferences → Company.</source>
      <translation>C'est ainsi que vos documents vous désignent. Tout peut être modifié plus tard dans Édition → Préférences → Entreprise.</translation>
    </message>
    <message>
      <source>E-Invoices</source>
      <translation>Factures électroniques</translation>
    </message>
    <message>
      <source>Public clients in Germany, and more and more businesses, ask for e-invoices (XRechnung). For them, Tamo needs these details of your business. You can fill them in later as well.</source>
      <translation>Les clients publics en Allemagne, et de plus en plus d'entreprises, demandent des factures électroniques (XRechnung). Pour celles-ci, Tamo a besoin de ces informations sur votre entreprise. Vous pouvez aussi les renseigner plus tard.</translation>
    </message>
    <message>
      <source>All Set</source>
      <translation>C'est prêt</translation>
    </message>
    <message>
      <source>Create your first invoice with File → New Invoice, choose its look with Document → Choose Design, and find every setting under Edit → Preferences. The assistant can be run again from the Edit menu.</source>
      <translation>Créez votre première facture avec Fichier → Nouvelle facture, choisissez son apparence avec Document → Choisir la mise en page, et retrouvez tous les paramètres dans Édition → Préférences. L'assistant peut être relancé depuis le menu Édition.</translation>
    </message>
    <message>
      <source>Quit Tamo</source>
      <translation>Quitter Tamo</translation>
    </message>
    <message>
      <source>Start Using Tamo</source>
      <translation>Commencer à utiliser Tamo</translation>
    </message>
    <message>
      <source>Charge shipping</source>
      <translation>Facturer des frais de port</translation>
    </message>
    <message>
      <source>Remembered</source>
      <translation>Mémorisés</translation>
    </message>
    <message>
      <source>This store is open for reading only, so nothing in it can be changed. %1</source>
      <translation>Cette base est ouverte en lecture seule : rien ne peut y être modifié. %1</translation>
    </message>
    <message>
      <source>The store “%1” could not be opened.</source>
      <translation>La base « %1 » n’a pas pu être ouverte.</translation>
    </message>
    <message>
      <source>It holds no Tamo data, and it may only be read.</source>
      <translation>Elle ne contient aucune donnée Tamo et ne peut qu’être lue.</translation>
    </message>
    <message>
      <source>The store “%1” could not be read.</source>
      <translation>La base « %1 » n’a pas pu être lue.</translation>
    </message>
    <message>
      <source>Your changes were not saved.</source>
      <translation>Vos modifications n’ont pas été enregistrées.</translation>
    </message>
    <message>
      <source>The lock file “%1” could not be made.</source>
      <translation>Le fichier de verrou « %1 » n’a pas pu être créé.</translation>
    </message>
    <message>
      <source>The store “%1” is in use by %2.</source>
      <translation>La base « %1 » est utilisée par %2.</translation>
    </message>
    <message>
      <source>Close that window first, or make the change there.</source>
      <translation>Fermez d’abord cette fenêtre, ou faites la modification dans celle-ci.</translation>
    </message>
    <message>
      <source>Try again when it has finished.</source>
      <translation>Réessayez quand elle aura terminé.</translation>
    </message>
    <message>
      <source>Tamo first saves a complete backup of the database, then copies the database to “%1” and continues with it there. The database in “%2” is left as it is.</source>
      <translation>Tamo enregistre d'abord une sauvegarde complète de la base de données, puis copie la base de données dans « %1 » et continue de l'utiliser à cet endroit. La base de données dans « %2 » reste inchangée.</translation>
    </message>
    <message>
      <source>The Tamo database already in “%1” will be replaced.</source>
      <translation>La base de données Tamo déjà présente dans « %1 » sera remplacée.</translation>
    </message>
    <message>
      <source>Move</source>
      <translation>Déplacer</translation>
    </message>
    <message>
      <source>Move Database</source>
      <translation>Déplacer la base de données</translation>
    </message>
    <message>
      <source>Legal name</source>
      <translation>Raison sociale</translation>
    </message>
    <message>
      <source>As registered</source>
      <translation>Telle qu'enregistrée</translation>
    </message>
    <message>
      <source>Such as DE123456789</source>
      <translation>Par exemple DE123456789</translation>
    </message>
    <message>
      <source>Company ID</source>
      <translation>Identifiant d'entreprise</translation>
    </message>
    <message>
      <source>Optional: register or tax number</source>
      <translation>Facultatif : numéro d'immatriculation ou numéro fiscal</translation>
    </message>
    <message>
      <source>Tax scheme</source>
      <translation>Régime de taxe</translation>
    </message>
    <message>
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message>
      <source>Postal code</source>
      <translation>Code postal</translation>
    </message>
    <message>
      <source>Country code</source>
      <translation>Code pays</translation>
    </message>
    <message>
      <source>Two letters, such as DE</source>
      <translation>Deux lettres, par exemple DE</translation>
    </message>
    <message>
      <source>Contact person</source>
      <translation>Personne de contact</translation>
    </message>
    <message>
      <source>Phone</source>
      <translation>Téléphone</translation>
    </message>
    <message>
      <source>Mail address</source>
      <translation>Adresse e-mail</translation>
    </message>
    <message>
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message>
      <source>Electronic address (GLN)</source>
      <translation>Adresse électronique (GLN)</translation>
    </message>
    <message>
      <source>Optional; without it, the mail address</source>
      <translation>Facultatif ; à défaut, l'adresse e-mail</translation>
    </message>
    <message>
      <source>New clients taken from the address book get:</source>
      <translation>Les nouveaux clients repris du carnet d'adresses reçoivent :</translation>
    </message>
    <message>
      <source>this tax scheme</source>
      <translation>ce régime de taxe</translation>
    </message>
    <message>
      <source>this country code</source>
      <translation>ce code pays</translation>
    </message>
    <message>
      <source>this currency</source>
      <translation>cette devise</translation>
    </message>
    <message>
      <source>The e-invoice check finds every supplier detail it needs.</source>
      <translation>La vérification de la facture électronique trouve toutes les informations fournisseur dont elle a besoin.</translation>
    </message>
    <message>
      <source>The e-invoice check still misses: %1.</source>
      <translation>Il manque encore à la vérification de la facture électronique : %1.</translation>
    </message>
    <message>
      <source>, </source>
      <translation>, </translation>
    </message>
    <message>
      <source>Tamo cannot answer this request.</source>
      <translation>Tamo ne peut pas répondre à cette requête.</translation>
    </message>
    <message>
      <source>The address is %1 characters long, longer than any request to Tamo.</source>
      <translation>L'adresse compte %1 caractères, plus que n'importe quelle requête adressée à Tamo.</translation>
    </message>
    <message>
      <source>"%1" is not a tamo:// address.</source>
      <translation>« %1 » n'est pas une adresse tamo://.</translation>
    </message>
    <message>
      <source>A request to Tamo has no path.</source>
      <translation>Une requête adressée à Tamo n'a pas de chemin.</translation>
    </message>
    <message>
      <source>Tamo does not know the request "%1".</source>
      <translation>Tamo ne connaît pas la requête « %1 ».</translation>
    </message>
    <message>
      <source>The request to import into Ledrix lacks its "%1".</source>
      <translation>La requête d'importation dans Ledrix ne comporte pas son « %1 ».</translation>
    </message>
    <message>
      <source>Taxes of new documents and lines</source>
      <translation>Taxes des nouveaux documents et lignes</translation>
    </message>
    <message>
      <source>Rate (%)</source>
      <translation>Taux (%)</translation>
    </message>
    <message>
      <source>Compound</source>
      <translation>Composée</translation>
    </message>
    <message>
      <source>A tax that is switched on is offered for each line and printed in the totals. A compound tax is levied on the net plus the taxes before it.</source>
      <translation>Une taxe activée est proposée pour chaque ligne et imprimée dans les totaux. Une taxe composée s'applique au montant net augmenté des taxes qui la précèdent.</translation>
    </message>
    <message>
      <source>Totals and lines</source>
      <translation>Totaux et lignes</translation>
    </message>
    <message>
      <source>Take the discount off before taxes (e-invoices need this)</source>
      <translation>Déduire la remise avant taxes (requis pour les factures électroniques)</translation>
    </message>
    <message>
      <source>Show each line's tax amounts</source>
      <translation>Afficher les montants de taxe de chaque ligne</translation>
    </message>
    <message>
      <source>Show each line's net amount</source>
      <translation>Afficher le montant net de chaque ligne</translation>
    </message>
    <message>
      <source>Show article numbers</source>
      <translation>Afficher les références article</translation>
    </message>
    <message>
      <source>A new document template takes over</source>
      <translation>Un nouveau modèle de document reprend</translation>
    </message>
    <message>
      <source>Its texts, currency and tax rates are always taken over.</source>
      <translation>Ses textes, sa devise et ses taux de taxe sont toujours repris.</translation>
    </message>
    <message>
      <source>Keep the list of templates open after applying one</source>
      <translation>Garder la liste des modèles ouverte après en avoir appliqué un</translation>
    </message>
    <message>
      <source>Document Templates</source>
      <translation>Modèles de document</translation>
    </message>
    <message>
      <source>A new template takes over</source>
      <translation>Un nouveau modèle reprend</translation>
    </message>
    <message>
      <source>Save Current as Template…</source>
      <translation>Enregistrer le document actuel comme modèle…</translation>
    </message>
    <message>
      <source>Save as Template</source>
      <translation>Enregistrer comme modèle</translation>
    </message>
    <message>
      <source>Name of the template:</source>
      <translation>Nom du modèle :</translation>
    </message>
    <message>
      <source>Payment terms, validity</source>
      <translation>Conditions de paiement, validité</translation>
    </message>
    <message>
      <source>Closing words, bank details</source>
      <translation>Formule de clôture, coordonnées bancaires</translation>
    </message>
    <message>
      <source>Private notes:</source>
      <translation>Notes privées :</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>Non imprimées</translation>
    </message>
    <message>
      <source>It holds no keyed archive.</source>
      <translation>Il ne contient aucune archive à clés.</translation>
    </message>
    <message>
      <source>Its root object is empty.</source>
      <translation>Son objet racine est vide.</translation>
    </message>
    <message>
      <source>It holds %1 where an object reference belongs.</source>
      <translation>Il contient %1 là où il faut une référence d’objet.</translation>
    </message>
    <message>
      <source>It refers to object %1 of %2.</source>
      <translation>Il renvoie à l’objet %1 sur %2.</translation>
    </message>
    <message>
      <source>Its objects unfold far beyond the size of the file.</source>
      <translation>Ses objets se déploient bien au-delà de la taille du fichier.</translation>
    </message>
    <message>
      <source>Its objects nest too deeply.</source>
      <translation>Ses objets sont trop imbriqués.</translation>
    </message>
    <message>
      <source>A date lies too far from today.</source>
      <translation>Une date est trop éloignée d’aujourd’hui.</translation>
    </message>
    <message>
      <source>Object %1 is %2.</source>
      <translation>L’objet %1 est %2.</translation>
    </message>
    <message>
      <source>Object %1 contains itself.</source>
      <translation>L’objet %1 se contient lui-même.</translation>
    </message>
    <message>
      <source>A data object holds no bytes.</source>
      <translation>Un objet de données ne contient aucun octet.</translation>
    </message>
    <message>
      <source>It holds an object of class “%1”, which Tamo does not read.</source>
      <translation>Il contient un objet de classe « %1 », que Tamo ne lit pas.</translation>
    </message>
    <message>
      <source>A dictionary has no matching keys and values.</source>
      <translation>Un dictionnaire n’a pas de clés et de valeurs correspondantes.</translation>
    </message>
    <message>
      <source>A dictionary has a key that is not text.</source>
      <translation>Un dictionnaire a une clé qui n’est pas du texte.</translation>
    </message>
    <message>
      <source>A list has no members.</source>
      <translation>Une liste n’a pas de membres.</translation>
    </message>
    <message>
      <source>A text object holds no text.</source>
      <translation>Un objet texte ne contient aucun texte.</translation>
    </message>
    <message>
      <source>A date holds no time.</source>
      <translation>Une date ne contient aucune heure.</translation>
    </message>
    <message>
      <source>A decimal number is malformed.</source>
      <translation>Un nombre décimal est mal formé.</translation>
    </message>
    <message>
      <source>Preferences</source>
      <translation>Préférences</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Entreprise</translation>
    </message>
    <message>
      <source>Design</source>
      <translation>Mise en page</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>Modèle</translation>
    </message>
    <message>
      <source>Data</source>
      <translation>Données</translation>
    </message>
    <message>
      <source>Region and Output</source>
      <translation>Région et sortie</translation>
    </message>
    <message>
      <source>The file does not hold a Tamo database alone.</source>
      <translation>Le fichier ne contient pas uniquement une base de données Tamo.</translation>
    </message>
    <message>
      <source>Its table “%1” has a column “%2” that Tamo does not make.</source>
      <translation>Sa table « %1 » a une colonne « %2 » que Tamo ne crée pas.</translation>
    </message>
    <message>
      <source>Its table “%1” is not defined as Tamo defines it.</source>
      <translation>Sa table « %1 » n’est pas définie comme Tamo la définit.</translation>
    </message>
    <message>
      <source>Its table “meta” is not defined as Tamo defines it.</source>
      <translation>Sa table « meta » n’est pas définie comme Tamo la définit.</translation>
    </message>
    <message>
      <source>a trigger</source>
      <translation>un déclencheur</translation>
    </message>
    <message>
      <source>a view</source>
      <translation>une vue</translation>
    </message>
    <message>
      <source>an index</source>
      <translation>un index</translation>
    </message>
    <message>
      <source>a table</source>
      <translation>une table</translation>
    </message>
    <message>
      <source>It holds %1 “%2”, which a Tamo database never has.</source>
      <translation>Elle contient %1 « %2 », ce qu’une base de données Tamo n’a jamais.</translation>
    </message>
    <message>
      <source>SQLite gave no result.</source>
      <translation>SQLite n’a donné aucun résultat.</translation>
    </message>
    <message>
      <source>%1 is taxed at the %2 with a rate of 0: give the tax a rate, or leave the tax off.</source>
      <translation>%1 relève de la catégorie « %2 », mais avec un taux de 0 : indiquez un taux pour la taxe, ou retirez la taxe.</translation>
    </message>
    <message>
      <source>%1 is %2 and needs a rate of 0.</source>
      <translation>%1 relève de la catégorie « %2 » et nécessite un taux de 0.</translation>
    </message>
    <message>
      <source>%1 is %2 and may not give a rate.</source>
      <translation>%1 relève de la catégorie « %2 » et ne doit pas indiquer de taux.</translation>
    </message>
    <message>
      <source>Items are taxed at the %1, but the tax breakdown has no subtotal for it.</source>
      <translation>Des éléments relèvent de la catégorie « %1 », mais la ventilation des taxes ne comporte aucun sous-total pour celle-ci.</translation>
    </message>
    <message>
      <source>The tax breakdown has a subtotal at the %1 that no line, allowance or charge uses.</source>
      <translation>La ventilation des taxes comporte un sous-total dans la catégorie « %1 » qu'aucune ligne, remise ou majoration n'utilise.</translation>
    </message>
    <message>
      <source>Items %1 need exactly one subtotal in the tax breakdown; it has %2.</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent exactement un sous-total dans la ventilation des taxes ; elle en comporte %2.</translation>
    </message>
    <message>
      <source>The taxable amount of the subtotal “%1” (%2) is not the sum of its lines, less allowances and plus charges (%3).</source>
      <translation>La base imposable du sous-total « %1 » (%2) n'est pas égale à la somme de ses lignes, moins les remises et plus les majorations (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal at %1 % (%2) is not its taxable amount times the rate (%3).</source>
      <translation>La taxe du sous-total à %1 % (%2) n'est pas égale à sa base imposable multipliée par le taux (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal “%1” must be 0.</source>
      <translation>La taxe du sous-total « %1 » doit être égale à 0.</translation>
    </message>
    <message>
      <source>Items %1 need the reason of the exemption in the tax breakdown: enter it on the e-invoice sheet (for example the law that exempts them).</source>
      <translation>Les éléments de la catégorie « %1 » nécessitent le motif de l'exonération dans la ventilation des taxes : saisissez-le dans la fenêtre Facture électronique (par exemple la disposition légale qui les exonère).</translation>
    </message>
    <message>
      <source>The subtotal “%1” may not give an exemption reason.</source>
      <translation>Le sous-total « %1 » ne doit pas indiquer de motif d'exonération.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the delivery date.</source>
      <translation>Les livraisons intracommunautaires nécessitent la date de livraison.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the country they are delivered to.</source>
      <translation>Les livraisons intracommunautaires nécessitent le pays de destination.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no other subtotal in its tax breakdown.</source>
      <translation>Une facture non soumise à la TVA ne peut comporter aucun autre sous-total dans sa ventilation des taxes.</translation>
    </message>
    <message>
      <source>in memory</source>
      <translation>en mémoire</translation>
    </message>
    <message>
      <source>It may only be read.</source>
      <translation>Elle ne peut qu’être lue.</translation>
    </message>
    <message>
      <source>The file is damaged.</source>
      <translation>Le fichier est endommagé.</translation>
    </message>
    <message>
      <source>It is not a database.</source>
      <translation>Ce n’est pas une base de données.</translation>
    </message>
    <message>
      <source>Another program is using it.</source>
      <translation>Un autre programme l’utilise.</translation>
    </message>
    <message>
      <source>There is not enough memory.</source>
      <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
      <source>The store “%1” could not be changed.</source>
      <translation>La base « %1 » n’a pas pu être modifiée.</translation>
    </message>
    <message>
      <source>The store “%1” could not be written.</source>
      <translation>La base « %1 » n’a pas pu être écrite.</translation>
    </message>
  </context>
</TS>
