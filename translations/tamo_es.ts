<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
  <context>
    <name>Tamo</name>
    <message>
      <source>Edit Number</source>
      <translation>Editar número</translation>
    </message>
    <message>
      <source>Edit Title</source>
      <translation>Editar título</translation>
    </message>
    <message>
      <source>Edit Subject</source>
      <translation>Editar asunto</translation>
    </message>
    <message>
      <source>Edit Date</source>
      <translation>Editar fecha</translation>
    </message>
    <message>
      <source>Edit Due Date</source>
      <translation>Editar fecha de vencimiento</translation>
    </message>
    <message>
      <source>Change Status</source>
      <translation>Cambiar estado</translation>
    </message>
    <message>
      <source>Edit Paid Amount</source>
      <translation>Editar importe pagado</translation>
    </message>
    <message>
      <source>Edit Payment Date</source>
      <translation>Editar fecha de pago</translation>
    </message>
    <message>
      <source>Mark Dispatched</source>
      <translation>Marcar como expedido</translation>
    </message>
    <message>
      <source>Edit Delivery Note Number</source>
      <translation>Editar número de albarán</translation>
    </message>
    <message>
      <source>Edit Delivery Date</source>
      <translation>Editar fecha de entrega</translation>
    </message>
    <message>
      <source>Edit Conditions</source>
      <translation>Editar condiciones</translation>
    </message>
    <message>
      <source>Edit Further Text</source>
      <translation>Editar texto adicional</translation>
    </message>
    <message>
      <source>Edit Footer</source>
      <translation>Editar pie de página</translation>
    </message>
    <message>
      <source>Edit Notes</source>
      <translation>Editar notas</translation>
    </message>
    <message>
      <source>Edit Client Name</source>
      <translation>Editar nombre del cliente</translation>
    </message>
    <message>
      <source>Edit Client Title</source>
      <translation>Editar tratamiento del cliente</translation>
    </message>
    <message>
      <source>Edit Client Number</source>
      <translation>Editar número de cliente</translation>
    </message>
    <message>
      <source>Edit VAT ID</source>
      <translation>Editar NIF-IVA</translation>
    </message>
    <message>
      <source>Edit E-mail Address</source>
      <translation>Editar dirección de correo electrónico</translation>
    </message>
    <message>
      <source>Edit Address</source>
      <translation>Editar dirección</translation>
    </message>
    <message>
      <source>Charge Shipping</source>
      <translation>Cobrar gastos de envío</translation>
    </message>
    <message>
      <source>Edit Shipping Title</source>
      <translation>Editar título de los gastos de envío</translation>
    </message>
    <message>
      <source>Edit Shipping Subtitle</source>
      <translation>Editar subtítulo de los gastos de envío</translation>
    </message>
    <message>
      <source>Show Shipping Subtitle</source>
      <translation>Mostrar subtítulo de los gastos de envío</translation>
    </message>
    <message>
      <source>Edit Shipping Amount</source>
      <translation>Editar importe de los gastos de envío</translation>
    </message>
    <message>
      <source>Tax Shipping</source>
      <translation>Aplicar impuesto a los gastos de envío</translation>
    </message>
    <message>
      <source>Grant Discount</source>
      <translation>Conceder descuento</translation>
    </message>
    <message>
      <source>Edit Discount Title</source>
      <translation>Editar título del descuento</translation>
    </message>
    <message>
      <source>Edit Discount Subtitle</source>
      <translation>Editar subtítulo del descuento</translation>
    </message>
    <message>
      <source>Show Discount Subtitle</source>
      <translation>Mostrar subtítulo del descuento</translation>
    </message>
    <message>
      <source>Change Discount Kind</source>
      <translation>Cambiar tipo de descuento</translation>
    </message>
    <message>
      <source>Edit Discount Amount</source>
      <translation>Editar importe del descuento</translation>
    </message>
    <message>
      <source>Edit Discount Percentage</source>
      <translation>Editar porcentaje del descuento</translation>
    </message>
    <message>
      <source>Edit E-Invoice Details</source>
      <translation>Editar datos de factura electrónica</translation>
    </message>
    <message>
      <source>Client</source>
      <translation>Cliente</translation>
    </message>
    <message>
      <source>Title</source>
      <translation>Título</translation>
    </message>
    <message>
      <source>Lines</source>
      <translation>Líneas</translation>
    </message>
    <message>
      <source>Shipping</source>
      <translation>Gastos de envío</translation>
    </message>
    <message>
      <source>Discount</source>
      <translation>Descuento</translation>
    </message>
    <message>
      <source>Exempt from VAT</source>
      <translation>Exenta de IVA</translation>
    </message>
    <message>
      <source>Reverse charge</source>
      <translation>Inversión del sujeto pasivo</translation>
    </message>
    <message>
      <source>Intra-community supply</source>
      <translation>Entrega intracomunitaria</translation>
    </message>
    <message>
      <source>Export outside the EU</source>
      <translation>Exportación fuera de la UE</translation>
    </message>
    <message>
      <source>Not subject to VAT</source>
      <translation>No sujeta a IVA</translation>
    </message>
    <message>
      <source>Zero rated</source>
      <translation>Tipo cero</translation>
    </message>
    <message>
      <source>Mark Invoice as Sent</source>
      <translation>Marcar factura como enviada</translation>
    </message>
    <message>
      <source>No document is selected.</source>
      <translation>No hay ningún documento seleccionado.</translation>
    </message>
    <message>
      <source>The conformant file asks for %1, while the document shows %2: the rules levy each tax on the amount after the discount at each line's own rate and round each tax subtotal once, which the document's totals do not.</source>
      <translation>El archivo conforme exige %1, mientras que el documento muestra %2: las normas aplican cada impuesto sobre el importe después del descuento, al tipo propio de cada línea, y redondean cada subtotal de impuesto una sola vez, cosa que los totales del documento no hacen.</translation>
    </message>
    <message>
      <source>It breaks a rule the recipient's validator checks:</source>
      <translation>Incumple una regla que comprueba el validador del destinatario:</translation>
    </message>
    <message>
      <source>It breaks %1 rules the recipient's validator checks, the first:</source>
      <translation>Incumple %1 reglas que comprueba el validador del destinatario; la primera:</translation>
    </message>
    <message>
      <source>This e-invoice will likely be rejected</source>
      <translation>Es probable que esta factura electrónica sea rechazada</translation>
    </message>
    <message>
      <source>Export it anyway?</source>
      <translation>¿Desea exportarla de todos modos?</translation>
    </message>
    <message>
      <source>Export Anyway</source>
      <translation>Exportar de todos modos</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Cancelar</translation>
    </message>
    <message>
      <source>Error!</source>
      <translation>¡Error!</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>Aceptar</translation>
    </message>
    <message>
      <source>The e-invoice could not be saved at %1.</source>
      <translation>No se pudo guardar la factura electrónica en %1.</translation>
    </message>
    <message>
      <source>Save E-Invoice XML File</source>
      <translation>Guardar archivo XML de factura electrónica</translation>
    </message>
    <message>
      <source>Choose a location to save your E-Invoice XML file.</source>
      <translation>Elija dónde guardar el archivo XML de la factura electrónica.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the discount as a line with a negative price and no tax category.</source>
      <translation>La factura electrónica estándar de Tamo escribe el descuento como una línea con precio negativo y sin categoría de impuesto.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line without taxes with no tax category.</source>
      <translation>La factura electrónica estándar de Tamo escribe una línea sin impuestos sin categoría de impuesto.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a line with a negative price as it is; the conformant file writes a negative quantity at a positive price.</source>
      <translation>La factura electrónica estándar de Tamo escribe tal cual una línea con precio negativo; el archivo conforme escribe una cantidad negativa a un precio positivo.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice leaves the discount line out of the sum of the lines.</source>
      <translation>La factura electrónica estándar de Tamo deja la línea de descuento fuera de la suma de las líneas.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice counts the shipping twice in the total without tax when there is a discount.</source>
      <translation>La factura electrónica estándar de Tamo cuenta dos veces los gastos de envío en el total sin impuestos cuando hay un descuento.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds the discount back into the total with tax.</source>
      <translation>La factura electrónica estándar de Tamo vuelve a sumar el descuento al total con impuestos.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the discount off the first tax's taxable amount only, while the tax was levied on the amount before the discount.</source>
      <translation>La factura electrónica estándar de Tamo resta el descuento solo de la base imponible del primer impuesto, aunque el impuesto se aplicó sobre el importe antes del descuento.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's tax sums as the document stores them, one subtotal per tax at the document's rate.</source>
      <translation>La factura electrónica estándar de Tamo escribe las sumas de impuestos tal como las guarda el documento: un subtotal por impuesto al tipo del documento.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes the document's totals as the document stores and rounds them.</source>
      <translation>La factura electrónica estándar de Tamo escribe los totales del documento tal como el documento los guarda y redondea.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice adds every tax into the tax total but writes subtotals only for taxes above zero.</source>
      <translation>La factura electrónica estándar de Tamo suma todos los impuestos en el total de impuestos, pero solo escribe subtotales para los impuestos mayores que cero.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes a document without taxes as one zero-rated subtotal over lines that carry no tax category.</source>
      <translation>La factura electrónica estándar de Tamo escribe un documento sin impuestos como un único subtotal a tipo cero sobre líneas que no llevan categoría de impuesto.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice takes the document's currency from Preferences → Company (prefsSupplierCurrency) and every amount's currency from the E-Invoice Details (evoiceCurrency); make them the same.</source>
      <translation>La factura electrónica estándar de Tamo toma la moneda del documento de Preferencias → Empresa (prefsSupplierCurrency) y la de cada importe de los Datos de factura electrónica (evoiceCurrency); haga que coincidan.</translation>
    </message>
    <message>
      <source>Tamo's standard e-invoice writes quantities and prices with two decimals, while the document calculates with three.</source>
      <translation>La factura electrónica estándar de Tamo escribe las cantidades y los precios con dos decimales, mientras que el documento calcula con tres.</translation>
    </message>
    <message>
      <source>Mail Address</source>
      <translation>Dirección de correo electrónico</translation>
    </message>
    <message>
      <source>Legal Name</source>
      <translation>Razón social</translation>
    </message>
    <message>
      <source>VAT ID</source>
      <translation>NIF-IVA</translation>
    </message>
    <message>
      <source>Currency</source>
      <translation>Moneda</translation>
    </message>
    <message>
      <source>Tax Scheme</source>
      <translation>Régimen fiscal</translation>
    </message>
    <message>
      <source>Country Code</source>
      <translation>Código de país</translation>
    </message>
    <message>
      <source>Street</source>
      <translation>Calle</translation>
    </message>
    <message>
      <source>Postal Code</source>
      <translation>Código postal</translation>
    </message>
    <message>
      <source>City</source>
      <translation>Localidad</translation>
    </message>
    <message>
      <source>Contact</source>
      <translation>Contacto</translation>
    </message>
    <message>
      <source>standard rate</source>
      <translation>tipo general</translation>
    </message>
    <message>
      <source>zero rated</source>
      <translation>tipo cero</translation>
    </message>
    <message>
      <source>exempt from VAT</source>
      <translation>exención de IVA</translation>
    </message>
    <message>
      <source>reverse charge</source>
      <translation>inversión del sujeto pasivo</translation>
    </message>
    <message>
      <source>intra-community supply</source>
      <translation>entrega intracomunitaria</translation>
    </message>
    <message>
      <source>export outside the EU</source>
      <translation>exportación fuera de la UE</translation>
    </message>
    <message>
      <source>not subject to VAT</source>
      <translation>no sujeción a IVA</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number.</source>
      <translation>Los elementos de la categoría «%1» necesitan su NIF-IVA o su número fiscal.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier or tax number and the client's VAT identifier.</source>
      <translation>Los elementos de la categoría «%1» necesitan su NIF-IVA o su número fiscal y el NIF-IVA del cliente.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier and the client's, both under the tax scheme VAT.</source>
      <translation>Los elementos de la categoría «%1» necesitan su NIF-IVA y el del cliente, ambos con el régimen fiscal VAT.</translation>
    </message>
    <message>
      <source>Items %1 need your VAT identifier under the tax scheme VAT.</source>
      <translation>Los elementos de la categoría «%1» necesitan su NIF-IVA con el régimen fiscal VAT.</translation>
    </message>
    <message>
      <source>Items %1 may not name your VAT identifier or the client's: choose another exemption category, or use this one only when nothing on the document is taxed.</source>
      <translation>Los elementos de la categoría «%1» no pueden indicar su NIF-IVA ni el del cliente: elija otra categoría de exención o utilice esta solo cuando nada en el documento esté sujeto a impuestos.</translation>
    </message>
    <message>
      <source>Line %1</source>
      <translation>Línea %1</translation>
    </message>
    <message>
      <source>The allowance</source>
      <translation>El descuento</translation>
    </message>
    <message>
      <source>The charge</source>
      <translation>El recargo</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no taxed line.</source>
      <translation>Una factura no sujeta a IVA no puede tener ninguna línea gravada.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no allowance in another tax category.</source>
      <translation>Una factura no sujeta a IVA no puede tener ningún descuento en otra categoría de impuesto.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no charge in another tax category.</source>
      <translation>Una factura no sujeta a IVA no puede tener ningún recargo en otra categoría de impuesto.</translation>
    </message>
    <message>
      <source>Your company's legal name is missing.</source>
      <translation>Falta la razón social de su empresa.</translation>
    </message>
    <message>
      <source>Your company's country code is missing.</source>
      <translation>Falta el código de país de su empresa.</translation>
    </message>
    <message>
      <source>Your company's city is missing.</source>
      <translation>Falta la localidad de su empresa.</translation>
    </message>
    <message>
      <source>Your company's postal code is missing.</source>
      <translation>Falta el código postal de su empresa.</translation>
    </message>
    <message>
      <source>Your company's contact person is missing.</source>
      <translation>Falta la persona de contacto de su empresa.</translation>
    </message>
    <message>
      <source>Your company's phone number is missing.</source>
      <translation>Falta el número de teléfono de su empresa.</translation>
    </message>
    <message>
      <source>Your company's e-mail address is missing.</source>
      <translation>Falta la dirección de correo electrónico de su empresa.</translation>
    </message>
    <message>
      <source>The client's legal name is missing.</source>
      <translation>Falta la razón social del cliente.</translation>
    </message>
    <message>
      <source>The client's country code is missing.</source>
      <translation>Falta el código de país del cliente.</translation>
    </message>
    <message>
      <source>The client's city is missing.</source>
      <translation>Falta la localidad del cliente.</translation>
    </message>
    <message>
      <source>The client's postal code is missing.</source>
      <translation>Falta el código postal del cliente.</translation>
    </message>
    <message>
      <source>The place of delivery has no city.</source>
      <translation>El lugar de entrega no tiene localidad.</translation>
    </message>
    <message>
      <source>The place of delivery has no postal code.</source>
      <translation>El lugar de entrega no tiene código postal.</translation>
    </message>
    <message>
      <source>The total of the allowances (%1) is not their sum (%2).</source>
      <translation>El total de los descuentos (%1) no es su suma (%2).</translation>
    </message>
    <message>
      <source>The total of the charges (%1) is not their sum (%2).</source>
      <translation>El total de los recargos (%1) no es su suma (%2).</translation>
    </message>
    <message>
      <source>Tamo files (%1)</source>
      <translation>Archivos de Tamo (%1)</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Imprimir</translation>
    </message>
    <message>
      <source>Show the subtitle</source>
      <translation>Mostrar el subtítulo</translation>
    </message>
    <message>
      <source>Edit %1 Title</source>
      <translation>Editar título de %1</translation>
    </message>
    <message>
      <source>Edit %1 Subtitle</source>
      <translation>Editar subtítulo de %1</translation>
    </message>
    <message>
      <source>Show %1 Subtitle</source>
      <translation>Mostrar subtítulo de %1</translation>
    </message>
    <message>
      <source>Title:</source>
      <translation>Título:</translation>
    </message>
    <message>
      <source>Subtitle:</source>
      <translation>Subtítulo:</translation>
    </message>
    <message>
      <source>Done</source>
      <translation>Hecho</translation>
    </message>
    <message>
      <source>Backup</source>
      <translation>Copia de seguridad</translation>
    </message>
    <message>
      <source>Restore</source>
      <translation>Restaurar</translation>
    </message>
    <message>
      <source>Hint!</source>
      <translation>¡Aviso!</translation>
    </message>
    <message>
      <source>The manual is not installed with this copy of Tamo.</source>
      <translation>El manual no está instalado con esta copia de Tamo.</translation>
    </message>
    <message>
      <source>No program could open the manual (%1). Please install a web browser.</source>
      <translation>Ningún programa pudo abrir el manual (%1). Instale un navegador web.</translation>
    </message>
    <message>
      <source>About Tamo</source>
      <translation>Acerca de Tamo</translation>
    </message>
    <message>
      <source>Invoices, quotes and e-invoices for freelancers and small businesses.</source>
      <translation>Facturas, presupuestos y facturas electrónicas para autónomos y pequeñas empresas.</translation>
    </message>
    <message>
      <source>&lt;p&gt;Copyright © 2026 The Tamo developers.&lt;/p&gt;&lt;p&gt;Tamo is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or (at your option) any later version. It comes with ABSOLUTELY NO WARRANTY.&lt;/p&gt;</source>
      <translation>&lt;p&gt;Copyright © 2026 los desarrolladores de Tamo.&lt;/p&gt;&lt;p&gt;Tamo es software libre: puede redistribuirlo y modificarlo según los términos de la Licencia Pública General de GNU, versión 3 o (a su elección) cualquier versión posterior. Se distribuye SIN NINGUNA GARANTÍA.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>&amp;Help</source>
      <translation>Ay&amp;uda</translation>
    </message>
    <message>
      <source>Tamo &amp;Manual</source>
      <translation>&amp;Manual de Tamo</translation>
    </message>
    <message>
      <source>&amp;About Tamo</source>
      <translation>&amp;Acerca de Tamo</translation>
    </message>
    <message>
      <source>About &amp;Qt</source>
      <translation>Acerca de &amp;Qt</translation>
    </message>
    <message>
      <source>Quote</source>
      <translation>Presupuesto</translation>
    </message>
    <message>
      <source>Sent</source>
      <translation>Enviada</translation>
    </message>
    <message>
      <source>Overdue</source>
      <translation>Vencida</translation>
    </message>
    <message>
      <source>Paid</source>
      <translation>Pagada</translation>
    </message>
    <message>
      <source>Partially paid</source>
      <translation>Pagada parcialmente</translation>
    </message>
    <message>
      <source>Created</source>
      <translation>Creada</translation>
    </message>
    <message>
      <source>Import Tamo Document…</source>
      <translation>Importar documento de Tamo…</translation>
    </message>
    <message>
      <source>Export As Invoices Dump…</source>
      <translation>Exportar como volcado de facturas…</translation>
    </message>
    <message>
      <source>Export Database As XML…</source>
      <translation>Exportar base de datos como XML…</translation>
    </message>
    <message>
      <source>Export Listed Invoices As XML…</source>
      <translation>Exportar facturas mostradas como XML…</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices…</source>
      <translation>Copia de seguridad de facturas de Tamo…</translation>
    </message>
    <message>
      <source>Backup Tamo Items…</source>
      <translation>Copia de seguridad de artículos de Tamo…</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database…</source>
      <translation>Crear copia de seguridad de la base de datos de E-Tamo…</translation>
    </message>
    <message>
      <source>Backup Raw Database…</source>
      <translation>Copia de seguridad de la base de datos sin procesar…</translation>
    </message>
    <message>
      <source>Write Safety Copy Now</source>
      <translation>Escribir copia de protección ahora</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices…</source>
      <translation>Restaurar facturas de Tamo…</translation>
    </message>
    <message>
      <source>Restore Tamo Items…</source>
      <translation>Restaurar artículos de Tamo…</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database…</source>
      <translation>Restaurar base de datos de E-Tamo…</translation>
    </message>
    <message>
      <source>Restore Raw Database…</source>
      <translation>Restaurar base de datos sin procesar…</translation>
    </message>
    <message>
      <source>Restore from Safety Copy…</source>
      <translation>Restaurar desde la copia de protección…</translation>
    </message>
    <message>
      <source>Move Data from the Flatpak Edition…</source>
      <translation>Traer los datos de la edición Flatpak…</translation>
    </message>
    <message>
      <source>Recover Previous Database…</source>
      <translation>Recuperar base de datos anterior…</translation>
    </message>
    <message>
      <source>the listed documents, newest first</source>
      <translation>los documentos mostrados, los más recientes primero</translation>
    </message>
    <message>
      <source>list --changed: what differs from the starting values of the language set up</source>
      <translation>list --changed: lo que difiere de los valores iniciales del idioma configurado</translation>
    </message>
    <message>
      <source>the starting values of a language, as the setup assistant's first page applies them</source>
      <translation>los valores iniciales de un idioma, tal como los aplica la primera página del asistente de configuración</translation>
    </message>
    <message>
      <source>recalculates every document and prints the sums</source>
      <translation>recalcula todos los documentos y muestra las sumas</translation>
    </message>
    <message>
      <source>XML property list, .tamoinvoices</source>
      <translation>lista de propiedades XML, .tamoinvoices</translation>
    </message>
    <message>
      <source>XML property list, .tamoitems</source>
      <translation>lista de propiedades XML, .tamoitems</translation>
    </message>
    <message>
      <source>every invoice</source>
      <translation>todas las facturas</translation>
    </message>
    <message>
      <source>the listed invoices</source>
      <translation>las facturas mostradas</translation>
    </message>
    <message>
      <source>the store file, .tamo2db</source>
      <translation>el archivo del almacén, .tamo2db</translation>
    </message>
    <message>
      <source>keyed archive of every invoice, .invdump</source>
      <translation>archivo con claves de todas las facturas, .invdump</translation>
    </message>
    <message>
      <source>a document file, .tamo</source>
      <translation>un archivo de documento, .tamo</translation>
    </message>
    <message>
      <source>a raw store copy, .sqlite</source>
      <translation>una copia sin procesar del almacén, .sqlite</translation>
    </message>
    <message>
      <source>a complete backup (default: the documents folder), then the store moves to DIR</source>
      <translation>una copia de seguridad completa (por omisión: la carpeta Documentos) y luego el almacén pasa a DIR</translation>
    </message>
    <message>
      <source>without COPY: lists the recovery copies; COPY is a copy's number, file name or path</source>
      <translation>sin COPY: enumera las copias de recuperación; COPY es el número, el nombre de archivo o la ruta de una copia</translation>
    </message>
    <message>
      <source>answers as when the desktop opens a file: a design is offered for import</source>
      <translation>responde como cuando el escritorio abre un archivo: se ofrece importar un diseño</translation>
    </message>
    <message>
      <source>a quote into an invoice</source>
      <translation>un presupuesto en factura</translation>
    </message>
    <message>
      <source>STATUS: 0 created, 1 sent, 3 paid, 4 partially paid (overdue follows from the due date)</source>
      <translation>STATUS: 0 creada, 1 enviada, 3 pagada, 4 pagada parcialmente (vencida resulta de la fecha de vencimiento)</translation>
    </message>
    <message>
      <source>0 all, 1 open, 2 overdue, 3 paid, 4 quotes, 5-8 recent</source>
      <translation>0 todos, 1 abiertos, 2 vencidos, 3 pagados, 4 presupuestos, 5-8 recientes</translation>
    </message>
    <message>
      <source>I counts from 0</source>
      <translation>I cuenta desde 0</translation>
    </message>
    <message>
      <source>the fields the editor shows: title, subject, date, due, texts, client, shipping, discount, e-invoice buyer; dates as 2026-03-05, percentages as 10</source>
      <translation>los campos que muestra el editor: título, asunto, fecha, vencimiento, textos, cliente, envío, descuento, comprador de la factura electrónica; fechas como 2026-03-05, porcentajes como 10</translation>
    </message>
    <message>
      <source>the document's lines, numbered as edit-line and delete-line take them</source>
      <translation>las líneas del documento, numeradas como las esperan edit-line y delete-line</translation>
    </message>
    <message>
      <source>KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes or no)</source>
      <translation>KEY: title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3 (yes o no)</translation>
    </message>
    <message>
      <source>XRechnung XML of document N, after the readiness check; --conformant writes the file the EN 16931 rules require (default: setting prefsEvoiceConformantBool)</source>
      <translation>XML XRechnung del documento N, tras la comprobación previa; --conformant escribe el archivo que exigen las normas EN 16931 (por omisión: ajuste prefsEvoiceConformantBool)</translation>
    </message>
    <message>
      <source>readiness, then the EN 16931 and XRechnung rules; exit 0 only when nothing fatal remains</source>
      <translation>comprobación previa y luego las normas EN 16931 y XRechnung; código de salida 0 solo si no queda nada grave</translation>
    </message>
    <message>
      <source>every listed document, DIR/NUMBER_N.pdf</source>
      <translation>todos los documentos mostrados, DIR/NUMBER_N.pdf</translation>
    </message>
    <message>
      <source>the sales report of the listed invoices; DATE is 2026-03-01 or 2026-03-01T12:00</source>
      <translation>el informe de ventas de las facturas mostradas; DATE es 2026-03-01 o 2026-03-01T12:00</translation>
    </message>
    <message>
      <source>every listed document, oldest first, as PDF</source>
      <translation>todos los documentos mostrados, los más antiguos primero, en PDF</translation>
    </message>
    <message>
      <source>prints document N on the default printer or NAME; marks an invoice as sent when markInvoiceAsSent is on</source>
      <translation>imprime el documento N en la impresora predeterminada o en NAME; marca una factura como enviada si markInvoiceAsSent está activado</translation>
    </message>
    <message>
      <source>document N as PDF file; marks an invoice as sent as print does</source>
      <translation>el documento N como archivo PDF; marca una factura como enviada igual que print</translation>
    </message>
    <message>
      <source>a new message in the mail client (xdg-email) with the PDF, or with the e-invoice after its checks; marks an invoice as sent as print does</source>
      <translation>un mensaje nuevo en el cliente de correo (xdg-email) con el PDF o, tras sus comprobaciones, con la factura electrónica; marca una factura como enviada igual que print</translation>
    </message>
    <message>
      <source>document file that import-document reads (.tamo), or its XML property list</source>
      <translation>archivo de documento que lee import-document (.tamo), o su lista de propiedades XML</translation>
    </message>
    <message>
      <source>the invoices of the range (default: every listed one) as kelvaneExport.ldxtamo or .kelvtamo, handed to the desktop; kind 0 every sent invoice, 1 paid, 2 overdue; --items keeps each invoice's lines instead of one summary; prints the file's path</source>
      <translation>las facturas del periodo (por omisión: todas las mostradas) como kelvaneExport.ldxtamo o .kelvtamo, entregadas al escritorio; kind 0 todas las facturas enviadas, 1 pagadas, 2 vencidas; --items conserva las líneas de cada factura en lugar de un resumen; muestra la ruta del archivo</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to 'Created' first. Then you will also be able to resend the modified invoice.</source>
      <translation>La factura seleccionada está marcada como ya enviada. Si de verdad necesita hacer cambios, vuelva a poner primero su estado en «Creada». Así también podrá reenviar la factura modificada.</translation>
    </message>
    <message>
      <source>This feature is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore print out the account book just for this single client or you can pre-filter all your invoices to print out the account book only for paid or overdue invoices.</source>
      <translation>Esta función se basa en las facturas que se muestran en la ventana principal de Tamo. Así puede, por ejemplo, buscar un cliente e imprimir el libro de cuentas solo para ese cliente, o filtrar antes sus facturas para imprimirlo solo con las facturas pagadas o vencidas.</translation>
    </message>
    <message>
      <source>“%1” is not a number Tamo can calculate with.</source>
      <translation>«%1» no es un número con el que Tamo pueda calcular.</translation>
    </message>
    <message>
      <source>%1 is too large: Tamo takes amounts of at most %2.</source>
      <translation>%1 es demasiado grande: Tamo admite importes de como máximo %2.</translation>
    </message>
    <message>
      <source>The line comes to %1, which is too large: Tamo takes amounts of at most %2.</source>
      <translation>La línea asciende a %1, lo cual es demasiado grande: Tamo admite importes de como máximo %2.</translation>
    </message>
    <message>
      <source>“%1” is not a number.</source>
      <translation>«%1» no es un número.</translation>
    </message>
    <message>
      <source>“%1” is not a percentage.</source>
      <translation>«%1» no es un porcentaje.</translation>
    </message>
    <message>
      <source>A rate cannot be negative (“%1”).</source>
      <translation>Un tipo no puede ser negativo («%1»).</translation>
    </message>
    <message>
      <source>A rate is at most 100 % (“%1”).</source>
      <translation>Un tipo es como máximo del 100 % («%1»).</translation>
    </message>
    <message>
      <source>Invoices: %1 (%2 sent)</source>
      <translation>Facturas: %1 (%2 enviadas)</translation>
    </message>
    <message>
      <source>Quotes: %1</source>
      <translation>Presupuestos: %1</translation>
    </message>
    <message>
      <source>Total: %1</source>
      <translation>Total: %1</translation>
    </message>
    <message>
      <source>Paid: %1</source>
      <translation>Pagado: %1</translation>
    </message>
    <message>
      <source>Due: %1</source>
      <translation>Pendiente: %1</translation>
    </message>
    <message>
      <source>Status</source>
      <translation>Estado</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>Número</translation>
    </message>
    <message>
      <source>Date</source>
      <translation>Fecha</translation>
    </message>
    <message>
      <source>Due</source>
      <translation>Pendiente</translation>
    </message>
    <message>
      <source>Amount</source>
      <translation>Importe</translation>
    </message>
    <message>
      <source>%1 needs a whole number</source>
      <translation>%1 necesita un número entero</translation>
    </message>
    <message>
      <source>Generated %1 documents with %2 lines and %3 clients.</source>
      <translation>Se generaron %1 documentos con %2 líneas y %3 clientes.</translation>
    </message>
    <message>
      <source>--store needs a folder</source>
      <translation>--store necesita una carpeta</translation>
    </message>
    <message>
      <source>usage: tamo %1</source>
      <translation>uso: tamo %1</translation>
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
      <translation>  Sin orden, abre la ventana (o trae al frente la que está abierta sobre el almacén).
  Las opciones pueden ir en cualquier lugar; «--» las termina.
  tamo [--store DIR] tamo://…  entrega una petición a la ventana, o la responde sin ella
  tamo [--store DIR] FILE      pide a la ventana que abra FILE, como hace el escritorio
  --store DIR   guardar el almacén, los ajustes y los archivos de datos en DIR
  --yes         responder a las preguntas con su botón predeterminado
  COMMAND --help, o tamo help COMMAND, explica más de una orden.
órdenes:
</translation>
    </message>
    <message>
      <source>unknown command "%1"</source>
      <translation>orden desconocida «%1»</translation>
    </message>
    <message>
      <source>the store “%1” may only be read: %2 “%3” would change it.</source>
      <translation>el almacén «%1» solo se puede leer: %2 «%3» lo modificaría.</translation>
    </message>
    <message>
      <source>nothing was exported</source>
      <translation>no se exportó nada</translation>
    </message>
    <message>
      <source>%1: nothing was written</source>
      <translation>%1: no se escribió nada</translation>
    </message>
    <message>
      <source>the export failed</source>
      <translation>la exportación ha fallado</translation>
    </message>
    <message>
      <source>Printed %1</source>
      <translation>Se imprimió %1</translation>
    </message>
    <message>
      <source>Wrote %1</source>
      <translation>Se escribió %1</translation>
    </message>
    <message>
      <source>Handed %1 to the mail client</source>
      <translation>Se entregó %1 al cliente de correo</translation>
    </message>
    <message>
      <source>the e-invoice was not mailed</source>
      <translation>la factura electrónica no se envió</translation>
    </message>
    <message>
      <source>quote</source>
      <translation>presupuesto</translation>
    </message>
    <message>
      <source>invoice</source>
      <translation>factura</translation>
    </message>
    <message>
      <source>Created %1</source>
      <translation>Se creó %1</translation>
    </message>
    <message>
      <source>Created %1 as a copy of %2</source>
      <translation>Se creó %1 como copia de %2</translation>
    </message>
    <message>
      <source>%1 was not converted</source>
      <translation>%1 no se convirtió</translation>
    </message>
    <message>
      <source>Converted into %1</source>
      <translation>Convertido en %1</translation>
    </message>
    <message>
      <source>Adjust Counter</source>
      <translation>Ajustar contador</translation>
    </message>
    <message>
      <source>%1 was not deleted</source>
      <translation>%1 no se eliminó</translation>
    </message>
    <message>
      <source>Deleted %1</source>
      <translation>Se eliminó %1</translation>
    </message>
    <message>
      <source>the status is 0, 1, 3 or 4 (overdue follows from the due date), not %1</source>
      <translation>el estado es 0, 1, 3 o 4 (vencida resulta de la fecha de vencimiento), no %1</translation>
    </message>
    <message>
      <source>%1 needs a number such as 120.50</source>
      <translation>%1 necesita un número como 120.50</translation>
    </message>
    <message>
      <source>Set Status</source>
      <translation>Establecer estado</translation>
    </message>
    <message>
      <source>%1: status %2</source>
      <translation>%1: estado %2</translation>
    </message>
    <message>
      <source>%1: delivered %2</source>
      <translation>%1: entregado el %2</translation>
    </message>
    <message>
      <source>TAG is a number from 0 to 8</source>
      <translation>TAG es un número del 0 al 8</translation>
    </message>
    <message>
      <source>there is no document %1</source>
      <translation>no existe el documento %1</translation>
    </message>
    <message>
      <source>%1 documents are numbered %2; name one by its uniqueID</source>
      <translation>%1 documentos tienen el número %2; indique uno por su uniqueID</translation>
    </message>
    <message>
      <source>text</source>
      <translation>un texto</translation>
    </message>
    <message>
      <source>date such as 2026-03-05</source>
      <translation>una fecha como 2026-03-05</translation>
    </message>
    <message>
      <source>amount such as 1234.50</source>
      <translation>un importe como 1234.50</translation>
    </message>
    <message>
      <source>percentage such as 10</source>
      <translation>un porcentaje como 10</translation>
    </message>
    <message>
      <source>yes or no</source>
      <translation>yes o no</translation>
    </message>
    <message>
      <source>choice</source>
      <translation>una opción</translation>
    </message>
    <message>
      <source>%1: %2 is marked as already sent; set its status back to 0 (created) first</source>
      <translation>%1: %2 está marcado como ya enviado; vuelva a poner primero su estado en 0 (creado)</translation>
    </message>
    <message>
      <source>%1 is not KEY=VALUE</source>
      <translation>%1 no tiene la forma KEY=VALUE</translation>
    </message>
    <message>
      <source>there is no field %1; the fields are %2</source>
      <translation>no existe el campo %1; los campos son %2</translation>
    </message>
    <message>
      <source>%1 is not a %2 for %3</source>
      <translation>%1 no es válido para %3, se espera %2</translation>
    </message>
    <message>
      <source>%1: nothing changed</source>
      <translation>%1: no ha cambiado nada</translation>
    </message>
    <message>
      <source>%1: changed %2; its total is now %3</source>
      <translation>%1: se cambió %2; el total es ahora %3</translation>
    </message>
    <message>
      <source>%1 has %2 lines; LINE counts them from 1 as `tamo lines` lists them</source>
      <translation>%1 tiene %2 líneas; LINE las cuenta desde 1, tal como las enumera `tamo lines`</translation>
    </message>
    <message>
      <source>%1 is yes or no</source>
      <translation>%1 es yes o no</translation>
    </message>
    <message>
      <source>there is no line field %1; the fields are title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</source>
      <translation>no existe el campo de línea %1; los campos son title, subtitle, unit, sku, note, price, quantity, tax1, tax2, tax3</translation>
    </message>
    <message>
      <source>Changed "%1" of %2; its total is now %3</source>
      <translation>Se cambió «%1» de %2; el total es ahora %3</translation>
    </message>
    <message>
      <source>delete-line: "%1" was not deleted (questions are answered only with --yes)</source>
      <translation>delete-line: «%1» no se eliminó (las preguntas solo se responden con --yes)</translation>
    </message>
    <message>
      <source>Deleted "%1" from %2; its total is now %3</source>
      <translation>Se eliminó «%1» de %2; el total es ahora %3</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; set its status back to Created to change or export it again</source>
      <translation>%1 está marcado como ya enviado; vuelva a poner su estado en «Creada» para cambiarlo o exportarlo de nuevo</translation>
    </message>
    <message>
      <source>possible</source>
      <translation>posible</translation>
    </message>
    <message>
      <source>not possible: %1</source>
      <translation>no es posible: %1</translation>
    </message>
    <message>
      <source>fatal</source>
      <translation>grave</translation>
    </message>
    <message>
      <source>warning</source>
      <translation>advertencia</translation>
    </message>
    <message>
      <source>passes the EN 16931 and XRechnung rules</source>
      <translation>cumple las normas EN 16931 y XRechnung</translation>
    </message>
    <message numerus="yes">
      <source>%n fatal finding(s): the recipient's validator will likely reject the file</source>
      <translation>
        <numerusform>%n hallazgo grave: el validador del destinatario probablemente rechazará el archivo</numerusform>
        <numerusform>%n hallazgos graves: el validador del destinatario probablemente rechazará el archivo</numerusform>
      </translation>
    </message>
    <message>
      <source>Skipped the e-invoice readiness check (--force); the file may lack required values.</source>
      <translation>Se omitió la comprobación previa de la factura electrónica (--force); al archivo pueden faltarle valores obligatorios.</translation>
    </message>
    <message>
      <source>no e-invoice for %1: %2 (see einvoice-details, settings)</source>
      <translation>no hay factura electrónica para %1: %2 (véase einvoice-details, settings)</translation>
    </message>
    <message>
      <source>no conformant e-invoice for %1: %2</source>
      <translation>no hay factura electrónica conforme para %1: %2</translation>
    </message>
    <message>
      <source>Warning: this e-invoice will likely be rejected: it breaks rules the recipient's validator checks (see einvoice-check %1).</source>
      <translation>Atención: esta factura electrónica probablemente será rechazada: incumple normas que comprueba el validador del destinatario (véase einvoice-check %1).</translation>
    </message>
    <message>
      <source>%1 cannot become an e-invoice yet</source>
      <translation>%1 aún no puede convertirse en factura electrónica</translation>
    </message>
    <message>
      <source>%1 breaks rules of EN 16931 or XRechnung</source>
      <translation>%1 incumple normas de EN 16931 o XRechnung</translation>
    </message>
    <message>
      <source>KEY is one of %1</source>
      <translation>KEY es uno de %1</translation>
    </message>
    <message>
      <source>%1: nothing was changed (questions are answered only with --yes)</source>
      <translation>%1: no se cambió nada (las preguntas solo se responden con --yes)</translation>
    </message>
    <message>
      <source>No safety copy was written at this start.</source>
      <translation>En este inicio no se escribió ninguna copia de protección.</translation>
    </message>
    <message>
      <source>Backed up the database to %1.
Moved the store to %2; Tamo opens it there from now on.</source>
      <translation>Se hizo una copia de seguridad de la base de datos en %1.
El almacén se trasladó a %2; Tamo lo abrirá allí a partir de ahora.</translation>
    </message>
    <message>
      <source>The store is already in %1.</source>
      <translation>El almacén ya está en %1.</translation>
    </message>
    <message>
      <source>move-store: the store stays in %1</source>
      <translation>move-store: el almacén se queda en %1</translation>
    </message>
    <message>
      <source>--price and --quantity need numbers such as 12.50</source>
      <translation>--price y --quantity necesitan números como 12.50</translation>
    </message>
    <message>
      <source>add-item: %1 was left as it is</source>
      <translation>add-item: %1 se quedó como estaba</translation>
    </message>
    <message>
      <source>Added "%1" (%2 x %3) to %4; its total is now %5</source>
      <translation>Se añadió «%1» (%2 x %3) a %4; el total es ahora %5</translation>
    </message>
    <message>
      <source>set-client: %1 was left as it is</source>
      <translation>set-client: %1 se quedó como estaba</translation>
    </message>
    <message>
      <source>there is no remembered client %1</source>
      <translation>no existe el cliente guardado %1</translation>
    </message>
    <message>
      <source>cannot read %1</source>
      <translation>no se puede leer %1</translation>
    </message>
    <message>
      <source>%1 has %2 contacts; --index counts them from 0</source>
      <translation>%1 tiene %2 contactos; --index los cuenta desde 0</translation>
    </message>
    <message>
      <source>The client of %1 is now %2</source>
      <translation>El cliente de %1 es ahora %2</translation>
    </message>
    <message>
      <source>there is no design %1 (see designs list)</source>
      <translation>no existe el diseño %1 (véase designs list)</translation>
    </message>
    <message>
      <source>cannot create the folder %1</source>
      <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
      <source>not written: %1: %2</source>
      <translation>no escrito: %1: %2</translation>
    </message>
    <message>
      <source>%1 of %2 documents were not written</source>
      <translation>No se escribieron %1 de %2 documentos</translation>
    </message>
    <message>
      <source>(default)</source>
      <translation>(predeterminado)</translation>
    </message>
    <message>
      <source>nothing deleted (answer with --yes)</source>
      <translation>no se eliminó nada (responda con --yes)</translation>
    </message>
    <message>
      <source>%1 %2 (%3 lines) %4</source>
      <translation>%1 %2 (%3 líneas) %4</translation>
    </message>
    <message>
      <source>there is no template %1 (see templates list)</source>
      <translation>no existe la plantilla %1 (véase templates list)</translation>
    </message>
    <message>
      <source>%1 is marked as already sent; the template was not applied</source>
      <translation>%1 está marcado como ya enviado; la plantilla no se aplicó</translation>
    </message>
    <message>
      <source>%1 needs a date such as 2026-03-01</source>
      <translation>%1 necesita una fecha como 2026-03-01</translation>
    </message>
    <message>
      <source>Wrote %1 (1 page)</source>
      <translation>Se escribió %1 (1 página)</translation>
    </message>
    <message>
      <source>Wrote %1 (%2 pages)</source>
      <translation>Se escribió %1 (%2 páginas)</translation>
    </message>
    <message>
      <source>The number of sample documents cannot be negative.</source>
      <translation>El número de documentos de ejemplo no puede ser negativo.</translation>
    </message>
    <message>
      <source>The number of lines per document cannot be negative.</source>
      <translation>El número de líneas por documento no puede ser negativo.</translation>
    </message>
    <message>
      <source>The number of sample clients cannot be negative.</source>
      <translation>El número de clientes de ejemplo no puede ser negativo.</translation>
    </message>
    <message>
      <source>The sample cannot be dated: the clock gives no time.</source>
      <translation>El ejemplo no se puede fechar: el reloj no da ninguna hora.</translation>
    </message>
    <message>
      <source>--file gives the image of prefsLogo</source>
      <translation>--file indica la imagen de prefsLogo</translation>
    </message>
    <message>
      <source>prefsLogo holds an image: set it with --file IMAGE, or remove it with an empty value</source>
      <translation>prefsLogo contiene una imagen: establézcala con --file IMAGE o quítela con un valor vacío</translation>
    </message>
    <message>
      <source>%1 is not a valid value for %2</source>
      <translation>%1 no es un valor válido para %2</translation>
    </message>
    <message>
      <source>there is no setting named %1</source>
      <translation>no existe ningún ajuste llamado %1</translation>
    </message>
    <message>
      <source>there are no starting values for "%1"</source>
      <translation>no hay valores iniciales para «%1»</translation>
    </message>
    <message>
      <source>setup: nothing was changed (questions are answered only with --yes)</source>
      <translation>setup: no se cambió nada (las preguntas solo se responden con --yes)</translation>
    </message>
    <message>
      <source>setup: no starting values were applied</source>
      <translation>setup: no se aplicó ningún valor inicial</translation>
    </message>
    <message>
      <source>Applied %1 starting values (%2).</source>
      <translation>Se aplicaron %1 valores iniciales (%2).</translation>
    </message>
    <message>
      <source>No mail client could take the message.</source>
      <translation>Ningún cliente de correo pudo recibir el mensaje.</translation>
    </message>
    <message>
      <source>The conformant file cannot be written; the standard file still can.</source>
      <translation>No se puede escribir el archivo conforme; el archivo estándar sí.</translation>
    </message>
    <message>
      <source>E-Invoice sheet</source>
      <translation>Hoja de factura electrónica</translation>
    </message>
    <message>
      <source>Preferences → Company</source>
      <translation>Preferencias → Empresa</translation>
    </message>
    <message>
      <source>Preferences → Taxes</source>
      <translation>Preferencias → Impuestos</translation>
    </message>
    <message>
      <source>document: %1</source>
      <translation>documento: %1</translation>
    </message>
    <message>
      <source>line %1: %2</source>
      <translation>línea %1: %2</translation>
    </message>
    <message>
      <source>E-Invoice Details: %1</source>
      <translation>Datos de factura electrónica: %1</translation>
    </message>
    <message>
      <source>Tamo writes one tax category for each tax of a line, and an e-invoice line may carry only one. Split the line into one line per tax; the conformant file cannot write it either.</source>
      <translation>Tamo escribe una categoría de impuesto por cada impuesto de una línea, y una línea de factura electrónica solo puede llevar una. Divida la línea en una línea por impuesto; el archivo conforme tampoco puede escribirla.</translation>
    </message>
    <message>
      <source>The document's structure, not a missing entry, is the cause: the conformant file writes it as the rules require.</source>
      <translation>La causa es la estructura del documento, no un dato que falte: el archivo conforme la escribe como exigen las normas.</translation>
    </message>
    <message>
      <source>E-Invoice Requirements</source>
      <translation>Requisitos de la factura electrónica</translation>
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
      <translation>Para poder exportar o enviar un archivo XML de factura electrónica válido, deben cumplirse los siguientes requisitos:

• Debe haber al menos un artículo o importe facturado.
• Los artículos no pueden tener un valor negativo.
• Los posibles descuentos deben calcularse antes de impuestos.

• Se requieren como mínimo los siguientes datos del cliente:
    • Dirección de correo electrónico
    • Razón social
    • NIF-IVA
    • Régimen fiscal
    • Dirección de correo electrónico
    • Código de país
    • Moneda
    • Calle, código postal, localidad

• Se requieren como mínimo los siguientes datos del proveedor:
    • Razón social
    • NIF-IVA
    • Régimen fiscal
    • IBAN
    • Contacto
    • Teléfono
    • Dirección de correo electrónico
    • Código de país
    • Moneda
    • Calle, código postal, localidad

Los datos necesarios pueden editarse en cualquier momento para cada factura en el diálogo «Datos de factura electrónica».</translation>
    </message>
    <message>
      <source>Tamo and E-Invoicing</source>
      <translation>Tamo y la facturación electrónica</translation>
    </message>
    <message>
      <source>Germany is moving business-to-business invoicing to e-invoices: structured files such as XRechnung that software can read without retyping. A PDF sent by e-mail is no longer an e-invoice.

Receiving: since 1 January 2025 every business in Germany must be able to accept e-invoices from other businesses.

Issuing: until the end of 2026 paper and PDF invoices remain allowed. Businesses whose turnover in the previous year was no more than 800,000 euros may keep sending them until the end of 2027. From 1 January 2028 every business must issue e-invoices to other businesses.

Tamo writes XRechnung 3.0 files. Enter your supplier details in the preferences and the customer's details in the 'E-Invoice Details' dialog of each invoice, then choose 'Export E-Invoice…'. To read the e-invoices you receive, use an e-invoice viewer: the button below shows where to find one.</source>
      <translation>Alemania está trasladando la facturación entre empresas a la factura electrónica: archivos estructurados, como XRechnung, que el software puede leer sin volver a teclearlos. Un PDF enviado por correo electrónico ya no es una factura electrónica.

Recepción: desde el 1 de enero de 2025, todas las empresas de Alemania deben poder aceptar facturas electrónicas de otras empresas.

Emisión: hasta finales de 2026 se siguen permitiendo las facturas en papel y en PDF. Las empresas cuya facturación del año anterior no superó los 800 000 euros pueden seguir enviándolas hasta finales de 2027. A partir del 1 de enero de 2028, todas las empresas deben emitir facturas electrónicas a otras empresas.

Tamo escribe archivos XRechnung 3.0. Introduzca sus datos de proveedor en las preferencias y los datos del cliente en el diálogo «Datos de factura electrónica» de cada factura; después elija «Exportar factura electrónica…». Para leer las facturas electrónicas que reciba, utilice un visor de facturas electrónicas: el botón de abajo le indica dónde encontrar uno.</translation>
    </message>
    <message>
      <source>About E-Invoicing</source>
      <translation>Acerca de la facturación electrónica</translation>
    </message>
    <message>
      <source>Find an E-Invoice Viewer</source>
      <translation>Buscar un visor de facturas electrónicas</translation>
    </message>
    <message>
      <source>The e-invoice needs a date in %1, and the UBL schema rejects an empty one.</source>
      <translation>La factura electrónica necesita una fecha en %1, y el esquema UBL rechaza una fecha vacía.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a date the UBL schema accepts.</source>
      <translation>«%1» en %2 no es una fecha que acepte el esquema UBL.</translation>
    </message>
    <message>
      <source>%1 is not a number: a fixed discount on a document whose lines add up to 0 makes the totals not-a-number. Remove the discount or add lines.</source>
      <translation>%1 no es un número: un descuento fijo en un documento cuyas líneas suman 0 hace que los totales no sean un número. Elimine el descuento o añada líneas.</translation>
    </message>
    <message>
      <source>“%1” in %2 is not a number the UBL schema accepts.</source>
      <translation>«%1» en %2 no es un número que acepte el esquema UBL.</translation>
    </message>
    <message>
      <source>The e-invoice would contain an empty element (%1); empty elements are not allowed. Fill in the value it comes from.</source>
      <translation>La factura electrónica contendría un elemento vacío (%1); no se permiten elementos vacíos. Rellene el valor del que procede.</translation>
    </message>
    <message>
      <source>The document has no number.</source>
      <translation>El documento no tiene número.</translation>
    </message>
    <message>
      <source>The document has no date.</source>
      <translation>El documento no tiene fecha.</translation>
    </message>
    <message>
      <source>The e-invoice names no currency.</source>
      <translation>La factura electrónica no indica ninguna moneda.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 4217 currency code such as EUR.</source>
      <translation>«%1» no es un código de moneda ISO 4217, como EUR.</translation>
    </message>
    <message>
      <source>The e-invoice has no line.</source>
      <translation>La factura electrónica no tiene ninguna línea.</translation>
    </message>
    <message>
      <source>The e-invoice needs a buyer reference, which Tamo takes from the document's title: enter one (for a public client, the routing ID it gave you, its Leitweg-ID).</source>
      <translation>La factura electrónica necesita una referencia del comprador, que Tamo toma del título del documento: introduzca una (para un cliente público, el identificador de enrutamiento que le haya dado, su Leitweg-ID).</translation>
    </message>
    <message>
      <source>The amounts carry the currency “%1”, which is not an ISO 4217 code such as EUR.</source>
      <translation>Los importes llevan la moneda «%1», que no es un código ISO 4217, como EUR.</translation>
    </message>
    <message>
      <source>Your phone number should contain at least three digits.</source>
      <translation>Su número de teléfono debe contener al menos tres dígitos.</translation>
    </message>
    <message>
      <source>Your e-mail address “%1” should be one address such as name@example.com.</source>
      <translation>Su dirección de correo electrónico «%1» debe ser una sola dirección, como nombre@ejemplo.com.</translation>
    </message>
    <message>
      <source>“%1” is not an ISO 3166 country code such as DE.</source>
      <translation>«%1» no es un código de país ISO 3166, como DE.</translation>
    </message>
    <message>
      <source>The VAT identifier “%1” does not start with a country code such as DE.</source>
      <translation>El NIF-IVA «%1» no empieza por un código de país, como DE.</translation>
    </message>
    <message>
      <source>The place of delivery has no country code.</source>
      <translation>El lugar de entrega no tiene código de país.</translation>
    </message>
    <message>
      <source>Taxed and tax-exempt items need your VAT identifier or tax number.</source>
      <translation>Los elementos gravados y exentos necesitan su NIF-IVA o su número fiscal.</translation>
    </message>
    <message>
      <source>Line %1 has no description.</source>
      <translation>La línea %1 no tiene descripción.</translation>
    </message>
    <message>
      <source>The price of line %1 is negative, and an e-invoice price may not be.</source>
      <translation>El precio de la línea %1 es negativo, y el precio de una factura electrónica no puede serlo.</translation>
    </message>
    <message>
      <source>Line %1 has no tax category.</source>
      <translation>La línea %1 no tiene categoría de impuesto.</translation>
    </message>
    <message>
      <source>The tax categories name the tax scheme “%1”, and the rules count only those of the scheme VAT: enter VAT as the tax scheme.</source>
      <translation>Las categorías de impuesto indican el régimen fiscal «%1», y las normas solo tienen en cuenta las del régimen VAT: introduzca VAT como régimen fiscal.</translation>
    </message>
    <message>
      <source>Line %1 must have exactly one tax category; it has %2.</source>
      <translation>La línea %1 debe tener exactamente una categoría de impuesto; tiene %2.</translation>
    </message>
    <message>
      <source>The amount of line %1 (%2) is not its quantity times its price (%3 × %4 = %5).</source>
      <translation>El importe de la línea %1 (%2) no es su cantidad por su precio (%3 × %4 = %5).</translation>
    </message>
    <message>
      <source>The tax total (%1) is not the sum of the tax subtotals (%2).</source>
      <translation>El total de impuestos (%1) no es la suma de los subtotales de impuestos (%2).</translation>
    </message>
    <message>
      <source>The tax at %1 % (%2) is not the taxable amount %3 times the rate, rounded to the cent (%4).</source>
      <translation>El impuesto al %1 % (%2) no es la base imponible %3 por el tipo, redondeado al céntimo (%4).</translation>
    </message>
    <message>
      <source>The sum of the lines (%1) is not what the line amounts add up to (%2).</source>
      <translation>La suma de las líneas (%1) no es lo que suman los importes de las líneas (%2).</translation>
    </message>
    <message>
      <source>none</source>
      <translation>ninguno</translation>
    </message>
    <message>
      <source>The total without tax (%1) is not the sum of the lines less the allowances plus the charges (%2).</source>
      <translation>El total sin impuestos (%1) no es la suma de las líneas menos los descuentos más los recargos (%2).</translation>
    </message>
    <message>
      <source>The tax total is not given in the document's currency %1, so the total with tax cannot add up.</source>
      <translation>El total de impuestos no está en la moneda del documento %1, por lo que el total con impuestos no puede cuadrar.</translation>
    </message>
    <message>
      <source>The total with tax (%1) is not the total without tax plus the tax (%2).</source>
      <translation>El total con impuestos (%1) no es el total sin impuestos más los impuestos (%2).</translation>
    </message>
    <message>
      <source>The amount due (%1) is not the total with tax less what was paid (%2).</source>
      <translation>El importe pendiente (%1) no es el total con impuestos menos lo pagado (%2).</translation>
    </message>
    <message>
      <source>The file is not a readable archive.</source>
      <translation>El archivo no es un archivo comprimido legible.</translation>
    </message>
    <message>
      <source>The file “%1” could not be found.</source>
      <translation>No se encontró el archivo «%1».</translation>
    </message>
    <message>
      <source>The file “%1” is too large to be a Tamo file (%2 MB).</source>
      <translation>El archivo «%1» es demasiado grande para ser un archivo de Tamo (%2 MB).</translation>
    </message>
    <message>
      <source>Nothing was read from it.</source>
      <translation>No se leyó nada de él.</translation>
    </message>
    <message>
      <source>The file “%1” could not be read.</source>
      <translation>No se pudo leer el archivo «%1».</translation>
    </message>
    <message>
      <source>The data could not be written as a property list.</source>
      <translation>Los datos no se pudieron escribir como lista de propiedades.</translation>
    </message>
    <message>
      <source>The file is empty or not a property list.</source>
      <translation>El archivo está vacío o no es una lista de propiedades.</translation>
    </message>
    <message>
      <source>The file refers to itself in a loop.</source>
      <translation>El archivo se remite a sí mismo en bucle.</translation>
    </message>
    <message>
      <source>The file nests deeper than any Tamo file does.</source>
      <translation>El archivo está más anidado que cualquier archivo de Tamo.</translation>
    </message>
    <message>
      <source>“%1” holds “%2”, which is not a date.</source>
      <translation>«%1» contiene «%2», que no es una fecha.</translation>
    </message>
    <message>
      <source>Record %1: %2</source>
      <translation>Registro %1: %2</translation>
    </message>
    <message>
      <source>The file is not a property list, or it is damaged.</source>
      <translation>El archivo no es una lista de propiedades o está dañado.</translation>
    </message>
    <message>
      <source>a yes/no value</source>
      <translation>un valor sí/no</translation>
    </message>
    <message>
      <source>a number</source>
      <translation>un número</translation>
    </message>
    <message>
      <source>a list</source>
      <translation>una lista</translation>
    </message>
    <message>
      <source>a record</source>
      <translation>un registro</translation>
    </message>
    <message>
      <source>a date</source>
      <translation>una fecha</translation>
    </message>
    <message>
      <source>binary data</source>
      <translation>datos binarios</translation>
    </message>
    <message>
      <source>an object reference</source>
      <translation>una referencia de objeto</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>un número entero</translation>
    </message>
    <message>
      <source>“%1” holds %2 where %3 belongs</source>
      <translation>«%1» contiene %2 donde corresponde %3</translation>
    </message>
    <message>
      <source>“%1” holds %2, which is too large for a whole number</source>
      <translation>«%1» contiene %2, demasiado grande para un número entero</translation>
    </message>
    <message>
      <source>“status” holds %1, which is no status (0 to 4)</source>
      <translation>«status» contiene %1, que no es un estado (0 a 4)</translation>
    </message>
    <message>
      <source>Record %1</source>
      <translation>Registro %1</translation>
    </message>
    <message>
      <source>Record %1 (%2)</source>
      <translation>Registro %1 (%2)</translation>
    </message>
    <message>
      <source>a record names no kind</source>
      <translation>un registro no indica ningún tipo</translation>
    </message>
    <message>
      <source>there are no records of kind “%1”</source>
      <translation>no existen registros del tipo «%1»</translation>
    </message>
    <message>
      <source>The %1 record %2 holds %3 in “%4”, which a property list cannot hold.</source>
      <translation>El registro %1 %2 contiene %3 en «%4», algo que una lista de propiedades no puede contener.</translation>
    </message>
    <message>
      <source>%1 stands where a record belongs</source>
      <translation>%1 está donde corresponde un registro</translation>
    </message>
    <message>
      <source>It holds %1 where a list of records belongs.</source>
      <translation>Contiene %1 donde corresponde una lista de registros.</translation>
    </message>
    <message>
      <source>The file “%1” could not be put in place.</source>
      <translation>El archivo «%1» no se pudo colocar en su sitio.</translation>
    </message>
    <message>
      <source>The file “%1” could not be removed.</source>
      <translation>No se pudo eliminar el archivo «%1».</translation>
    </message>
    <message>
      <source>The copy “%1” could not be written.</source>
      <translation>No se pudo escribir la copia «%1».</translation>
    </message>
    <message>
      <source>It was found damaged after writing: %1</source>
      <translation>Estaba dañada después de escribirla: %1</translation>
    </message>
    <message>
      <source>The file “%1” is not a Tamo database that Tamo can use.</source>
      <translation>El archivo «%1» no es una base de datos de Tamo que Tamo pueda usar.</translation>
    </message>
    <message>
      <source>It is damaged: %1</source>
      <translation>Está dañada: %1</translation>
    </message>
    <message>
      <source>It records no Tamo layout.</source>
      <translation>No registra ninguna estructura de Tamo.</translation>
    </message>
    <message>
      <source>The store “%1” is damaged.</source>
      <translation>El almacén «%1» está dañado.</translation>
    </message>
    <message>
      <source>SQLite reports: %1 Tamo has changed nothing; a recovery copy or a backup can take its place (File › Recover Previous Database…, or tamo recover).</source>
      <translation>SQLite informa: %1 Tamo no ha cambiado nada; una copia de recuperación o una copia de seguridad puede ocupar su lugar (Archivo › Recuperar base de datos anterior… o tamo recover).</translation>
    </message>
    <message>
      <source>The store “%1” was written by a newer version of Tamo.</source>
      <translation>El almacén «%1» fue escrito por una versión más reciente de Tamo.</translation>
    </message>
    <message>
      <source>Please update Tamo to open it.</source>
      <translation>Actualice Tamo para abrirlo.</translation>
    </message>
    <message>
      <source>Expected a folder to store application data, found a file (%1).</source>
      <translation>Se esperaba una carpeta para los datos de la aplicación, pero se encontró un archivo (%1).</translation>
    </message>
    <message>
      <source>The folder %1 could not be created.</source>
      <translation>No se pudo crear la carpeta %1.</translation>
    </message>
    <message>
      <source>Please check that you may write to its parent folder.</source>
      <translation>Compruebe que puede escribir en su carpeta superior.</translation>
    </message>
    <message>
      <source>The file %1 could not be replaced.</source>
      <translation>No se pudo sustituir el archivo %1.</translation>
    </message>
    <message>
      <source>The disk is full.</source>
      <translation>El disco está lleno.</translation>
    </message>
    <message>
      <source>Permission denied.</source>
      <translation>Permiso denegado.</translation>
    </message>
    <message>
      <source>The file system is read-only.</source>
      <translation>El sistema de archivos es de solo lectura.</translation>
    </message>
    <message>
      <source>The folder does not exist.</source>
      <translation>La carpeta no existe.</translation>
    </message>
    <message>
      <source>A folder stands in its place.</source>
      <translation>Hay una carpeta en su lugar.</translation>
    </message>
    <message>
      <source>Part of its path is not a folder.</source>
      <translation>Parte de su ruta no es una carpeta.</translation>
    </message>
    <message>
      <source>The disk reported an error.</source>
      <translation>El disco ha informado de un error.</translation>
    </message>
    <message>
      <source>The system gave no reason.</source>
      <translation>El sistema no dio ningún motivo.</translation>
    </message>
    <message>
      <source>The file “%1” could not be written.</source>
      <translation>No se pudo escribir el archivo «%1».</translation>
    </message>
    <message>
      <source>The file is not a Tamo design.</source>
      <translation>El archivo no es un diseño de Tamo.</translation>
    </message>
    <message>
      <source>It holds no dictionary.</source>
      <translation>No contiene ningún diccionario.</translation>
    </message>
    <message>
      <source>It holds no “designDic” dictionary.</source>
      <translation>No contiene ningún diccionario «designDic».</translation>
    </message>
    <message>
      <source>The built-in design “%1” is missing.</source>
      <translation>Falta el diseño incorporado «%1».</translation>
    </message>
    <message>
      <source>“%1” cannot be used as the logo.</source>
      <translation>«%1» no se puede usar como logotipo.</translation>
    </message>
    <message>
      <source>The file is larger than 20 MB.</source>
      <translation>El archivo ocupa más de 20 MB.</translation>
    </message>
    <message>
      <source>The file cannot be opened.</source>
      <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
      <source>It is no image Tamo can read (PNG, JPEG, GIF, BMP, SVG or WebP).</source>
      <translation>No es una imagen que Tamo pueda leer (PNG, JPEG, GIF, BMP, SVG o WebP).</translation>
    </message>
    <message>
      <source>The image could not be converted to PNG.</source>
      <translation>No se pudo convertir la imagen a PNG.</translation>
    </message>
    <message>
      <source>%1 image, %2 × %3 pixels, %4</source>
      <translation>Imagen %1, %2 × %3 píxeles, %4</translation>
    </message>
    <message>
      <source>Invoices</source>
      <translation>Facturas</translation>
    </message>
    <message>
      <source>Average</source>
      <translation>Promedio</translation>
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
      <translation>PENDIENTE</translation>
    </message>
    <message>
      <source>PAID</source>
      <translation>PAGADO</translation>
    </message>
    <message>
      <source>AVERAGE</source>
      <translation>PROMEDIO</translation>
    </message>
    <message>
      <source>The starting values “%1” could not be read.</source>
      <translation>No se pudieron leer los valores iniciales «%1».</translation>
    </message>
    <message>
      <source>Tamo has no setting “%1”.</source>
      <translation>Tamo no tiene ningún ajuste «%1».</translation>
    </message>
    <message>
      <source>The value of “%1” is %2, which that setting cannot hold.</source>
      <translation>El valor de «%1» es %2, algo que ese ajuste no puede contener.</translation>
    </message>
    <message>
      <source>The account book could not be drawn.</source>
      <translation>No se pudo generar el libro de cuentas.</translation>
    </message>
    <message>
      <source>Send To</source>
      <translation>Enviar a</translation>
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
      <translation>Cómo importar desde Ledrix…</translation>
    </message>
    <message>
      <source>Preparing invoices for Ledrix</source>
      <translation>Preparando facturas para Ledrix</translation>
    </message>
    <message>
      <source>%1 of %2 PDFs written</source>
      <translation>%1 de %2 PDF escritos</translation>
    </message>
    <message>
      <source>--kind is 0 (every sent invoice), 1 (paid) or 2 (overdue)</source>
      <translation>--kind es 0 (todas las facturas enviadas), 1 (pagadas) o 2 (vencidas)</translation>
    </message>
    <message>
      <source>Handed “%1” to %2.</source>
      <translation>«%1» entregado a %2.</translation>
    </message>
    <message>
      <source>Writing %1 PDFs for Ledrix…</source>
      <translation>Escribiendo %1 PDF para Ledrix…</translation>
    </message>
    <message>
      <source>not written: </source>
      <translation>no escrito: </translation>
    </message>
    <message>
      <source>Wrote %1 and called Ledrix back.</source>
      <translation>Se escribió %1 y se devolvió la llamada a Ledrix.</translation>
    </message>
    <message>
      <source>Tamo can put a copy of your data in place of the damaged store. The damaged file is kept as a recovery copy.</source>
      <translation>Tamo puede poner una copia de sus datos en lugar del almacén dañado. El archivo dañado se conserva como copia de recuperación.</translation>
    </message>
    <message>
      <source>The newest recovery copy is “%1”.</source>
      <translation>La copia de recuperación más reciente es «%1».</translation>
    </message>
    <message>
      <source>Not Now</source>
      <translation>Ahora no</translation>
    </message>
    <message>
      <source>Recover Your Data</source>
      <translation>Recuperar sus datos</translation>
    </message>
    <message>
      <source>Failed to initialize the store</source>
      <translation>No se pudo inicializar el almacén</translation>
    </message>
    <message>
      <source>There was an error building up the data file.</source>
      <translation>Se produjo un error al crear el archivo de datos.</translation>
    </message>
    <message>
      <source>It is in use by %1; this is a snapshot of it.</source>
      <translation>Lo está usando %1; esta es una instantánea.</translation>
    </message>
    <message>
      <source>another Tamo</source>
      <translation>otro Tamo</translation>
    </message>
    <message>
      <source>Tamo cannot make its store in the folder “%1”.</source>
      <translation>Tamo no puede crear su almacén en la carpeta «%1».</translation>
    </message>
    <message>
      <source>Its folder “%1” may not be written. %2</source>
      <translation>Su carpeta «%1» no se puede escribir. %2</translation>
    </message>
    <message>
      <source>The store file may only be read.</source>
      <translation>El archivo del almacén solo se puede leer.</translation>
    </message>
    <message>
      <source>The store “%1” is open for reading only.</source>
      <translation>El almacén «%1» está abierto solo para lectura.</translation>
    </message>
    <message>
      <source>Your change was not kept.</source>
      <translation>Su cambio no se ha conservado.</translation>
    </message>
    <message>
      <source>Quit anyway</source>
      <translation>Salir de todos modos</translation>
    </message>
    <message>
      <source>Could not save changes while quitting. Quit anyway?</source>
      <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
      <source>Quitting now will lose any changes you have made since the last successful save</source>
      <translation>Si sale ahora, perderá todos los cambios hechos desde la última vez que se guardó correctamente</translation>
    </message>
    <message>
      <source>The data nests too deeply to be archived.</source>
      <translation>Los datos están demasiado anidados para archivarlos.</translation>
    </message>
    <message>
      <source>The data holds a value that cannot be archived.</source>
      <translation>Los datos contienen un valor que no se puede archivar.</translation>
    </message>
    <message>
      <source>Only %1 of its %2 bytes reached the disk.</source>
      <translation>Solo %1 de sus %2 bytes llegaron al disco.</translation>
    </message>
    <message>
      <source>First name:</source>
      <translation>Nombre:</translation>
    </message>
    <message>
      <source>Last name:</source>
      <translation>Apellidos:</translation>
    </message>
    <message>
      <source>E-mail:</source>
      <translation>Correo electrónico:</translation>
    </message>
    <message>
      <source>VAT ID:</source>
      <translation>NIF-IVA:</translation>
    </message>
    <message>
      <source>Name:</source>
      <translation>Nombre:</translation>
    </message>
    <message>
      <source>Legal name:</source>
      <translation>Razón social:</translation>
    </message>
    <message>
      <source>Contact:</source>
      <translation>Contacto:</translation>
    </message>
    <message>
      <source>Street:</source>
      <translation>Calle:</translation>
    </message>
    <message>
      <source>Postal code:</source>
      <translation>Código postal:</translation>
    </message>
    <message>
      <source>City:</source>
      <translation>Localidad:</translation>
    </message>
    <message>
      <source>Country code:</source>
      <translation>Código de país:</translation>
    </message>
    <message>
      <source>Tax scheme:</source>
      <translation>Régimen fiscal:</translation>
    </message>
    <message>
      <source>Currency:</source>
      <translation>Moneda:</translation>
    </message>
    <message>
      <source>Choose Client</source>
      <translation>Elegir cliente</translation>
    </message>
    <message>
      <source>No contacts to show. Tamo reads them from the vCard file or folder chosen in the preferences.</source>
      <translation>No hay contactos que mostrar. Tamo los lee del archivo o la carpeta de vCard elegidos en las preferencias.</translation>
    </message>
    <message>
      <source>Open Contacts</source>
      <translation>Abrir contactos</translation>
    </message>
    <message>
      <source>Search</source>
      <translation>Buscar</translation>
    </message>
    <message>
      <source>Use Client</source>
      <translation>Usar cliente</translation>
    </message>
    <message>
      <source>Contacts</source>
      <translation>Contactos</translation>
    </message>
    <message>
      <source>Remembered Clients</source>
      <translation>Clientes recordados</translation>
    </message>
    <message>
      <source>Address:</source>
      <translation>Dirección:</translation>
    </message>
    <message>
      <source>New Client Number</source>
      <translation>Nuevo número de cliente</translation>
    </message>
    <message>
      <source>Client no.:</source>
      <translation>N.º de cliente:</translation>
    </message>
    <message>
      <source>E-invoice buyer</source>
      <translation>Comprador de factura electrónica</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>Aplicar</translation>
    </message>
    <message>
      <source>%1 — %2</source>
      <translation>%1 — %2</translation>
    </message>
    <message>
      <source>Choose Client…</source>
      <translation>Elegir cliente…</translation>
    </message>
    <message>
      <source>You have one ore more broken vcards in your %1; probably from a corrupted iCloud sync.

Please open your %1 and delete it or them. Usually, they are very easy to spot. Just look for 'No Name' or '(null)' and you may need to do this on your others devices as well, in case it is happening again.

After doing that, just restart Tamo and you will be able to select people and addresses without any problems.</source>
      <translation>Su %1 contiene una o varias vCards dañadas, probablemente por una sincronización de iCloud defectuosa.

Abra su %1 y elimínelas. Suelen ser muy fáciles de encontrar: busque «No Name» o «(null)». Si vuelve a ocurrir, quizá tenga que hacerlo también en sus otros dispositivos.

Después, reinicie Tamo y podrá elegir personas y direcciones sin ningún problema.</translation>
    </message>
    <message>
      <source>You need to provide an address pattern in the Preferences.</source>
      <translation>Debe indicar un patrón de dirección en las preferencias.</translation>
    </message>
    <message>
      <source>Set Client</source>
      <translation>Establecer cliente</translation>
    </message>
    <message>
      <source>Choose vCard File…</source>
      <translation>Elegir archivo vCard…</translation>
    </message>
    <message>
      <source>Choose Folder…</source>
      <translation>Elegir carpeta…</translation>
    </message>
    <message>
      <source>Tamo takes its clients from an address book of vCard files (.vcf), and none is chosen yet; no contacts application was found to open instead. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>Tamo toma sus clientes de una libreta de direcciones de archivos vCard (.vcf), y aún no se ha elegido ninguna; tampoco se encontró ninguna aplicación de contactos que abrir en su lugar. Elija un archivo vCard, o una carpeta de archivos vCard, como libreta de direcciones.</translation>
    </message>
    <message>
      <source>The address book “%1” is not there any more. Choose a vCard file, or a folder of vCard files, as your address book.</source>
      <translation>La libreta de direcciones «%1» ya no existe. Elija un archivo vCard, o una carpeta de archivos vCard, como libreta de direcciones.</translation>
    </message>
    <message>
      <source>Choose Address Book</source>
      <translation>Elegir libreta de direcciones</translation>
    </message>
    <message>
      <source>Clients from the address book</source>
      <translation>Clientes de la libreta de direcciones</translation>
    </message>
    <message>
      <source>Address pattern:</source>
      <translation>Patrón de dirección:</translation>
    </message>
    <message>
      <source>Inserts the token at the cursor</source>
      <translation>Inserta el marcador en la posición del cursor</translation>
    </message>
    <message>
      <source>Example:</source>
      <translation>Ejemplo:</translation>
    </message>
    <message>
      <source>Client name:</source>
      <translation>Nombre del cliente:</translation>
    </message>
    <message>
      <source>Last name</source>
      <translation>Apellidos</translation>
    </message>
    <message>
      <source>First and last name</source>
      <translation>Nombre y apellidos</translation>
    </message>
    <message>
      <source>Title and last name</source>
      <translation>Tratamiento y apellidos</translation>
    </message>
    <message>
      <source>Title and first name</source>
      <translation>Tratamiento y nombre</translation>
    </message>
    <message>
      <source>Title, first and last name</source>
      <translation>Tratamiento, nombre y apellidos</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>Libreta de direcciones</translation>
    </message>
    <message>
      <source>A vCard file, or a folder of them</source>
      <translation>Un archivo vCard o una carpeta de ellos</translation>
    </message>
    <message>
      <source>File…</source>
      <translation>Archivo…</translation>
    </message>
    <message>
      <source>Folder…</source>
      <translation>Carpeta…</translation>
    </message>
    <message>
      <source>Choose the Address Book</source>
      <translation>Elegir la libreta de direcciones</translation>
    </message>
    <message>
      <source>vCards (*.vcf *.vcard)</source>
      <translation>vCards (*.vcf *.vcard)</translation>
    </message>
    <message>
      <source>Choose the Folder of vCards</source>
      <translation>Elegir la carpeta de vCards</translation>
    </message>
    <message>
      <source>vCards:</source>
      <translation>vCards:</translation>
    </message>
    <message>
      <source>Pop-overs open on</source>
      <translation>Los paneles emergentes se abren en</translation>
    </message>
    <message>
      <source>Client:</source>
      <translation>Cliente:</translation>
    </message>
    <message>
      <source>The address book</source>
      <translation>La libreta de direcciones</translation>
    </message>
    <message>
      <source>The remembered clients</source>
      <translation>Los clientes recordados</translation>
    </message>
    <message>
      <source>New line:</source>
      <translation>Línea nueva:</translation>
    </message>
    <message>
      <source>An empty line</source>
      <translation>Una línea vacía</translation>
    </message>
    <message>
      <source>The catalog</source>
      <translation>El catálogo</translation>
    </message>
    <message>
      <source>Shipping:</source>
      <translation>Gastos de envío:</translation>
    </message>
    <message>
      <source>The shipping entry</source>
      <translation>La entrada de gastos de envío</translation>
    </message>
    <message>
      <source>The remembered shipping</source>
      <translation>Los gastos de envío recordados</translation>
    </message>
    <message>
      <source>Jane</source>
      <translation>María</translation>
    </message>
    <message>
      <source>Doe</source>
      <translation>García López</translation>
    </message>
    <message>
      <source>Example Ltd</source>
      <translation>Ejemplo S.L.</translation>
    </message>
    <message>
      <source>1 Main Street</source>
      <translation>Calle Mayor 1</translation>
    </message>
    <message>
      <source>Springfield</source>
      <translation>Madrid</translation>
    </message>
    <message>
      <source>62701</source>
      <translation>28013</translation>
    </message>
    <message>
      <source>IL</source>
      <translation>M</translation>
    </message>
    <message>
      <source>United States</source>
      <translation>España</translation>
    </message>
    <message>
      <source>Dr.</source>
      <translation>Dra.</translation>
    </message>
    <message>
      <source>Client name: %1</source>
      <translation>Nombre del cliente: %1</translation>
    </message>
    <message>
      <source>Without vCards, the client panel offers the remembered clients and lets you type a client.</source>
      <translation>Sin vCards, el panel de clientes ofrece los clientes recordados y le permite escribir un cliente.</translation>
    </message>
    <message>
      <source>There is no file or folder at this place.</source>
      <translation>No hay ningún archivo ni carpeta en esta ubicación.</translation>
    </message>
    <message numerus="yes">
      <source>%n contact(s) found.</source>
      <translation>
        <numerusform>%n contacto encontrado.</numerusform>
        <numerusform>%n contactos encontrados.</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) cannot be read.</source>
      <translation>
        <numerusform>No se puede leer %n tarjeta.</numerusform>
        <numerusform>No se pueden leer %n tarjetas.</numerusform>
      </translation>
    </message>
    <message>
      <source>unknown option %1</source>
      <translation>opción desconocida %1</translation>
    </message>
    <message>
      <source>%1 takes no value</source>
      <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
      <source>%1 needs a value</source>
      <translation>%1 necesita un valor</translation>
    </message>
    <message>
      <source>Your name or your business's name</source>
      <translation>Su nombre o el nombre de su empresa</translation>
    </message>
    <message>
      <source>Slogan:</source>
      <translation>Eslogan:</translation>
    </message>
    <message>
      <source>Address, phone, mail and web site, as your letterhead shows them</source>
      <translation>Dirección, teléfono, correo y sitio web, tal como aparecen en su membrete</translation>
    </message>
    <message>
      <source>Name · Street 1 · 12345 Town</source>
      <translation>Nombre · Calle 1 · 12345 Localidad</translation>
    </message>
    <message>
      <source>Sender line:</source>
      <translation>Línea del remitente:</translation>
    </message>
    <message>
      <source>Printed small above the client's address, so that it shows in the window of an envelope.</source>
      <translation>Se imprime en letra pequeña sobre la dirección del cliente, para que se vea en la ventana de un sobre.</translation>
    </message>
    <message>
      <source>Logo:</source>
      <translation>Logotipo:</translation>
    </message>
    <message>
      <source>Such as EUR</source>
      <translation>Por ejemplo, EUR</translation>
    </message>
    <message>
      <source>Sender</source>
      <translation>Remitente</translation>
    </message>
    <message>
      <source>E-invoices (XRechnung)</source>
      <translation>Facturas electrónicas (XRechnung)</translation>
    </message>
    <message>
      <source>“%1” is not a tax category for lines without taxes; choose one of E, AE, K, G, O or Z.</source>
      <translation>«%1» no es una categoría de impuesto para líneas sin impuestos; elija una de E, AE, K, G, O o Z.</translation>
    </message>
    <message>
      <source>Line %1 has %2 taxes, and an e-invoice line carries one tax category: split it into one line per tax.</source>
      <translation>La línea %1 tiene %2 impuestos, y una línea de factura electrónica lleva una sola categoría de impuesto: divídala en una línea por impuesto.</translation>
    </message>
    <message>
      <source>Line %1 has a negative tax rate.</source>
      <translation>La línea %1 tiene un tipo impositivo negativo.</translation>
    </message>
    <message>
      <source>Line %1 has a compound tax, levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>La línea %1 tiene un impuesto compuesto, aplicado sobre otro impuesto; las normas solo contemplan impuestos sobre el importe neto.</translation>
    </message>
    <message>
      <source>The shipping has %1 taxes, and an e-invoice charge carries one tax category.</source>
      <translation>Los gastos de envío tienen %1 impuestos, y un recargo de factura electrónica lleva una sola categoría de impuesto.</translation>
    </message>
    <message>
      <source>The shipping's tax is compound (Preferences → Taxes), levied on another tax; the rules know only taxes on the net amount.</source>
      <translation>El impuesto de los gastos de envío es compuesto (Preferencias → Impuestos), aplicado sobre otro impuesto; las normas solo contemplan impuestos sobre el importe neto.</translation>
    </message>
    <message>
      <source>The discount is calculated after taxes; the rules take allowances off the net amount.</source>
      <translation>El descuento se calcula después de impuestos; las normas restan los descuentos del importe neto.</translation>
    </message>
    <message>
      <source>The discount has no value: a fixed discount on lines that add up to 0.</source>
      <translation>El descuento no tiene valor: un descuento fijo sobre líneas que suman 0.</translation>
    </message>
    <message>
      <source>No printer is set up on this computer.</source>
      <translation>No hay ninguna impresora configurada en este equipo.</translation>
    </message>
    <message>
      <source>Add a printer in the system settings, or save the document as a PDF file instead.</source>
      <translation>Añada una impresora en la configuración del sistema o, en su lugar, guarde el documento como archivo PDF.</translation>
    </message>
    <message>
      <source>The document could not be sent to the printer “%1”.</source>
      <translation>No se pudo enviar el documento a la impresora «%1».</translation>
    </message>
    <message>
      <source>The safety copy of your invoices was not written.</source>
      <translation>No se escribió la copia de protección de sus facturas.</translation>
    </message>
    <message>
      <source>No valid backup file available. Please restore your Tamo database from your own (Time Machine) backups.</source>
      <translation>No hay ningún archivo de copia de seguridad válido. Restaure su base de datos de Tamo desde sus propias copias de seguridad (Time Machine).</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from the safety copy. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Está a punto de restaurar sus facturas de Tamo desde la copia de protección. Todas las facturas existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Restore…</source>
      <translation>Restaurar…</translation>
    </message>
    <message>
      <source>Nothing was changed.</source>
      <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
      <source>Tamo has no database until it starts again.</source>
      <translation>Tamo no tiene base de datos hasta que vuelva a iniciarse.</translation>
    </message>
    <message>
      <source>The database was not backed up.</source>
      <translation>No se hizo la copia de seguridad de la base de datos.</translation>
    </message>
    <message>
      <source>Your latest changes could not be saved first; please check them.</source>
      <translation>Sus últimos cambios no se pudieron guardar antes; revíselos.</translation>
    </message>
    <message>
      <source>Backup E-Tamo Database</source>
      <translation>Crear copia de seguridad de la base de datos de E-Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your entire E-Tamo database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Está a punto de restaurar toda su base de datos de E-Tamo desde una copia de seguridad. Todos los datos existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Restore E-Tamo Database</source>
      <translation>Restaurar base de datos de E-Tamo</translation>
    </message>
    <message>
      <source>Backup Raw Database</source>
      <translation>Copia de seguridad de la base de datos sin procesar</translation>
    </message>
    <message>
      <source>You are about to replace your entire E-Tamo database with a raw copy of a database file. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Está a punto de sustituir toda su base de datos de E-Tamo por la copia sin procesar de un archivo de base de datos. Todos los datos existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Restore Raw Database</source>
      <translation>Restaurar base de datos sin procesar</translation>
    </message>
    <message>
      <source>Could not restore Tamo database automatically. Please do this by hand. In case of problems, simply contact the Sorel support.</source>
      <translation>No se pudo restaurar automáticamente la base de datos de Tamo. Hágalo a mano. Si tiene problemas, póngase en contacto con el soporte de Sorel.</translation>
    </message>
    <message>
      <source>You are about to move the database of Tamo's Flatpak edition here. This will irretrievably replace any existing data. Do you really want to do that?</source>
      <translation>Está a punto de traer aquí la base de datos de la edición Flatpak de Tamo. Todos los datos existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Move…</source>
      <translation>Mover…</translation>
    </message>
    <message>
      <source>There is no recovery copy yet. Tamo writes one before every restore that replaces stored data.</source>
      <translation>Todavía no hay ninguna copia de recuperación. Tamo escribe una antes de cada restauración que sustituye datos guardados.</translation>
    </message>
    <message>
      <source>Recover Previous Database</source>
      <translation>Recuperar base de datos anterior</translation>
    </message>
    <message>
      <source>You are about to return to the database as it was in “%1”. What is stored now is kept as another recovery copy. Do you want to do that?</source>
      <translation>Está a punto de volver a la base de datos tal como estaba en «%1». Lo que hay guardado ahora se conserva como otra copia de recuperación. ¿Quiere hacerlo?</translation>
    </message>
    <message>
      <source>Recover…</source>
      <translation>Recuperar…</translation>
    </message>
    <message>
      <source>Warning!</source>
      <translation>¡Atención!</translation>
    </message>
    <message>
      <source>Without a recovery copy nothing was changed.</source>
      <translation>Sin copia de recuperación no se ha cambiado nada.</translation>
    </message>
    <message>
      <source>No file was written: the store could not be read completely.</source>
      <translation>No se escribió ningún archivo: el almacén no se pudo leer por completo.</translation>
    </message>
    <message>
      <source>No file was written.</source>
      <translation>No se escribió ningún archivo.</translation>
    </message>
    <message>
      <source>Export Tamo Database As XML</source>
      <translation>Exportar base de datos de Tamo como XML</translation>
    </message>
    <message>
      <source>Backup Tamo Invoices</source>
      <translation>Copia de seguridad de facturas de Tamo</translation>
    </message>
    <message>
      <source>Backup Tamo Items</source>
      <translation>Copia de seguridad de artículos de Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo invoices from a backup. This will irretrievably replace any existing invoices. Do you really want to do that?</source>
      <translation>Está a punto de restaurar sus facturas de Tamo desde una copia de seguridad. Todas las facturas existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Restore Tamo Invoices</source>
      <translation>Restaurar facturas de Tamo</translation>
    </message>
    <message>
      <source>You are about to restore your Tamo items from a backup. This will irretrievably replace any existing items. Do you really want to do that?</source>
      <translation>Está a punto de restaurar sus artículos de Tamo desde una copia de seguridad. Todos los artículos existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
      <source>Restore Tamo Items</source>
      <translation>Restaurar artículos de Tamo</translation>
    </message>
    <message>
      <source>The file “%1” could not be restored.</source>
      <translation>No se pudo restaurar el archivo «%1».</translation>
    </message>
    <message>
      <source>The records that were listed have been removed. The recovery copy “%1” holds them: File › Recover Previous Database… brings them back (on the command line: tamo --yes recover "%1").</source>
      <translation>Los registros listados se han eliminado. La copia de recuperación «%1» los contiene: Archivo › Recuperar base de datos anterior… los recupera (en la línea de órdenes: tamo --yes recover "%1").</translation>
    </message>
    <message numerus="yes">
      <source>%n record(s) carried an identity (uniqueID) that another record already has. Each was given a new one, so that every record can be found by its own.</source>
      <translation>
        <numerusform>%n registro llevaba una identidad (uniqueID) que ya tiene otro registro. Ha recibido una nueva, para que cada registro se encuentre por la suya.</numerusform>
        <numerusform>%n registros llevaban una identidad (uniqueID) que ya tiene otro registro. Cada uno ha recibido una nueva, para que cada registro se encuentre por la suya.</numerusform>
      </translation>
    </message>
    <message>
      <source>Export As Invoices Dump</source>
      <translation>Exportar como volcado de facturas</translation>
    </message>
    <message>
      <source>The integrity of your data is your responsibility, and yours alone. Tamo is just a stupid App and by design it can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
      <translation>La integridad de sus datos es responsabilidad suya y solo suya. Tamo no es más que una simple aplicación y, por diseño, no puede saber ni preocuparse de facturas duplicadas, números desordenados o de si hoy tiene un mal día. Así que hágase un favor y compruebe lo que está haciendo. ¿Aún quiere importar la factura?</translation>
    </message>
    <message>
      <source>Import…</source>
      <translation>Importar…</translation>
    </message>
    <message>
      <source>Import Tamo Document</source>
      <translation>Importar documento de Tamo</translation>
    </message>
    <message>
      <source>The document “%1” could not be imported.</source>
      <translation>No se pudo importar el documento «%1».</translation>
    </message>
    <message>
      <source>It holds no document.</source>
      <translation>No contiene ningún documento.</translation>
    </message>
    <message>
      <source>Import Document</source>
      <translation>Importar documento</translation>
    </message>
    <message>
      <source>Tamo, Tamo Documents, and the Tamo Database</source>
      <translation>Tamo, los documentos de Tamo y la base de datos de Tamo</translation>
    </message>
    <message>
      <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the 'File Menu' to open documents and to restore the Tamo database.</source>
      <translation>Para evitar entradas duplicadas y tropiezos, y mantener intacta la base de datos, use el menú «Archivo» para abrir documentos y restaurar la base de datos de Tamo.</translation>
    </message>
    <message>
      <source>Database</source>
      <translation>Base de datos</translation>
    </message>
    <message>
      <source>Move to Another Folder…</source>
      <translation>Mover a otra carpeta…</translation>
    </message>
    <message>
      <source>Move Back to the Default Folder</source>
      <translation>Volver a la carpeta predeterminada</translation>
    </message>
    <message>
      <source>Choose the Folder for the Database</source>
      <translation>Elegir la carpeta de la base de datos</translation>
    </message>
    <message>
      <source>Moving first saves a complete backup, then copies the database to the new folder and starts Tamo again there. The old folder keeps its copy.</source>
      <translation>Al mover, primero se guarda una copia de seguridad completa; después se copia la base de datos a la nueva carpeta y Tamo se reinicia allí. La carpeta antigua conserva su copia.</translation>
    </message>
    <message>
      <source>Backups</source>
      <translation>Copias de seguridad</translation>
    </message>
    <message>
      <source>The safety copy is written at each start, when the last run ended in order. Before anything replaces stored data wholesale, Tamo keeps a recovery copy of the database; the ten newest are kept.</source>
      <translation>La copia de protección se escribe en cada inicio, cuando la última ejecución terminó correctamente. Antes de que algo sustituya por completo los datos guardados, Tamo conserva una copia de recuperación de la base de datos; se guardan las diez más recientes.</translation>
    </message>
    <message>
      <source>The database is in the default folder:
%1</source>
      <translation>La base de datos está en la carpeta predeterminada:
%1</translation>
    </message>
    <message>
      <source>The database is in a folder you chose:
%1</source>
      <translation>La base de datos está en una carpeta elegida por usted:
%1</translation>
    </message>
    <message>
      <source>No recovery copies yet.</source>
      <translation>Todavía no hay copias de recuperación.</translation>
    </message>
    <message numerus="yes">
      <source>%n recovery copies, the newest “%1”.</source>
      <translation>
        <numerusform>%n copia de recuperación, la más reciente «%1».</numerusform>
        <numerusform>%n copias de recuperación, la más reciente «%1».</numerusform>
      </translation>
    </message>
    <message>
      <source>Calendar</source>
      <translation>Calendario</translation>
    </message>
    <message>
      <source>Choose the date in a calendar</source>
      <translation>Elegir la fecha en un calendario</translation>
    </message>
    <message>
      <source>Choose a Design</source>
      <translation>Elegir un diseño</translation>
    </message>
    <message>
      <source>Add Design</source>
      <translation>Añadir diseño</translation>
    </message>
    <message>
      <source>New Design</source>
      <translation>Nuevo diseño</translation>
    </message>
    <message>
      <source>Delete</source>
      <translation>Eliminar</translation>
    </message>
    <message>
      <source>Delete Design</source>
      <translation>Eliminar diseño</translation>
    </message>
    <message>
      <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
      <translation>La eliminación de diseños es permanente y no se puede deshacer. ¿Realmente desea eliminar el diseño seleccionado?</translation>
    </message>
    <message>
      <source>Make Default Design</source>
      <translation>Establecer como diseño predeterminado</translation>
    </message>
    <message>
      <source>There is no open store to import the design into.</source>
      <translation>No hay ningún almacén abierto al que importar el diseño.</translation>
    </message>
    <message>
      <source>“%1” cannot be imported: %2</source>
      <translation>No se puede importar «%1»: %2</translation>
    </message>
    <message>
      <source>Import Design</source>
      <translation>Importar diseño</translation>
    </message>
    <message>
      <source>Import Tamo Design</source>
      <translation>Importar diseño de Tamo</translation>
    </message>
    <message>
      <source>Export Tamo Design</source>
      <translation>Exportar diseño de Tamo</translation>
    </message>
    <message>
      <source>There is no open store for the built-in designs.</source>
      <translation>No hay ningún almacén abierto para los diseños integrados.</translation>
    </message>
    <message>
      <source>Page</source>
      <translation>Página</translation>
    </message>
    <message>
      <source>Row</source>
      <translation>Fila</translation>
    </message>
    <message>
      <source>Style Sheet</source>
      <translation>Hoja de estilo</translation>
    </message>
    <message>
      <source>Preview</source>
      <translation>Vista previa</translation>
    </message>
    <message>
      <source>Add</source>
      <translation>Añadir</translation>
    </message>
    <message>
      <source>Make Default</source>
      <translation>Establecer como predeterminado</translation>
    </message>
    <message>
      <source>Export…</source>
      <translation>Exportar…</translation>
    </message>
    <message>
      <source>Rename Design</source>
      <translation>Cambiar nombre del diseño</translation>
    </message>
    <message>
      <source>Edit Design</source>
      <translation>Editar diseño</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the design preview.</source>
      <translation>Algo salió muy mal al crear la vista previa del diseño.</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Abrir</translation>
    </message>
    <message>
      <source>Unable to start xdg-open for %1.</source>
      <translation>No se puede iniciar xdg-open para %1.</translation>
    </message>
    <message>
      <source>No application opened %1.</source>
      <translation>Ninguna aplicación abrió %1.</translation>
    </message>
    <message>
      <source>xdg-open ended with code %1.</source>
      <translation>xdg-open terminó con el código %1.</translation>
    </message>
    <message>
      <source>the records nest too deeply</source>
      <translation>los registros están demasiado anidados</translation>
    </message>
    <message>
      <source>a record of kind %1 has no entry “%2”</source>
      <translation>un registro del tipo %1 no tiene la entrada «%2»</translation>
    </message>
    <message>
      <source>%1, entry %2</source>
      <translation>%1, entrada %2</translation>
    </message>
    <message>
      <source>a list of records</source>
      <translation>una lista de registros</translation>
    </message>
    <message>
      <source>a record of kind “%1” stands where one of kind %2 belongs</source>
      <translation>un registro del tipo «%1» está donde corresponde uno del tipo %2</translation>
    </message>
    <message>
      <source>Grant a discount</source>
      <translation>Conceder un descuento</translation>
    </message>
    <message>
      <source>Fixed amount</source>
      <translation>Importe fijo</translation>
    </message>
    <message>
      <source>Percentage of the net sum</source>
      <translation>Porcentaje de la suma neta</translation>
    </message>
    <message>
      <source>Kind:</source>
      <translation>Tipo:</translation>
    </message>
    <message>
      <source>in %</source>
      <translation>en %</translation>
    </message>
    <message>
      <source>Amount:</source>
      <translation>Importe:</translation>
    </message>
    <message>
      <source>Percentage:</source>
      <translation>Porcentaje:</translation>
    </message>
    <message>
      <source>Print Invoice</source>
      <translation>Imprimir factura</translation>
    </message>
    <message>
      <source>Export Invoice As PDF File</source>
      <translation>Exportar factura como archivo PDF</translation>
    </message>
    <message>
      <source>Send PDF Invoice As Mail Attachment</source>
      <translation>Enviar factura PDF como adjunto de correo</translation>
    </message>
    <message>
      <source>Export Document File</source>
      <translation>Exportar archivo de documento</translation>
    </message>
    <message>
      <source>No design available. Please download or create a design.</source>
      <translation>No hay ningún diseño disponible. Descargue o cree un diseño.</translation>
    </message>
    <message>
      <source>Something went really wrong while creating the preview.</source>
      <translation>Algo salió muy mal al crear la vista previa.</translation>
    </message>
    <message>
      <source>Ooops!</source>
      <translation>¡Vaya!</translation>
    </message>
    <message>
      <source>The document has not been printed into a PDF yet.</source>
      <translation>El documento aún no se ha impreso en un PDF.</translation>
    </message>
    <message>
      <source>Export As PDF File</source>
      <translation>Exportar como archivo PDF</translation>
    </message>
    <message>
      <source>Show in Folder</source>
      <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
      <source>The file to attach is kept at %1; you can attach it to a message yourself.</source>
      <translation>El archivo que adjuntar se encuentra en %1; puede adjuntarlo usted mismo a un mensaje.</translation>
    </message>
    <message>
      <source>Export As Tamo Document</source>
      <translation>Exportar como documento de Tamo</translation>
    </message>
    <message>
      <source>Export As XML Document</source>
      <translation>Exportar como documento XML</translation>
    </message>
    <message>
      <source>&amp;Print…</source>
      <translation>&amp;Imprimir…</translation>
    </message>
    <message>
      <source>Export As PD&amp;F…</source>
      <translation>Exportar como PD&amp;F…</translation>
    </message>
    <message>
      <source>PDF</source>
      <translation>PDF</translation>
    </message>
    <message>
      <source>Send PDF by &amp;Mail…</source>
      <translation>Enviar PDF por &amp;correo…</translation>
    </message>
    <message>
      <source>Mail</source>
      <translation>Correo</translation>
    </message>
    <message>
      <source>Export As Tamo &amp;Document…</source>
      <translation>E&amp;xportar como documento de Tamo…</translation>
    </message>
    <message>
      <source>Export As XML &amp;Document…</source>
      <translation>E&amp;xportar como documento XML…</translation>
    </message>
    <message>
      <source>&lt;p style='font-size:large'&gt;No document selected&lt;/p&gt;&lt;p&gt;Create an invoice or a quote, or choose one from the list.&lt;/p&gt;</source>
      <translation>&lt;p style='font-size:large'&gt;No hay ningún documento seleccionado&lt;/p&gt;&lt;p&gt;Cree una factura o un presupuesto, o elija uno de la lista.&lt;/p&gt;</translation>
    </message>
    <message>
      <source>This document has been sent. Only its status and payment can change; set the status back to "Created" to edit the rest.</source>
      <translation>Este documento ya se ha enviado. Solo pueden cambiar su estado y su pago; vuelva a poner el estado en «Creada» para editar el resto.</translation>
    </message>
    <message>
      <source>Document</source>
      <translation>Documento</translation>
    </message>
    <message>
      <source>Items</source>
      <translation>Conceptos</translation>
    </message>
    <message>
      <source>Texts</source>
      <translation>Textos</translation>
    </message>
    <message>
      <source>Invoice</source>
      <translation>Factura</translation>
    </message>
    <message>
      <source>New Invoice</source>
      <translation>Nueva factura</translation>
    </message>
    <message>
      <source>New Quote</source>
      <translation>Nuevo presupuesto</translation>
    </message>
    <message>
      <source>Duplicate</source>
      <translation>Duplicar</translation>
    </message>
    <message>
      <source>Sorry!</source>
      <translation>¡Lo sentimos!</translation>
    </message>
    <message>
      <source>You can't convert an invoice into a quote.</source>
      <translation>No se puede convertir una factura en presupuesto.</translation>
    </message>
    <message>
      <source>Convert</source>
      <translation>Convertir</translation>
    </message>
    <message>
      <source>Convert Into Invoice</source>
      <translation>Convertir en factura</translation>
    </message>
    <message>
      <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the boilerplate text, the counter for your invoice numbering, and you can't undo this action.</source>
      <translation>¿Seguro que quiere convertir el presupuesto seleccionado en factura? También cambiarán el título, el texto predefinido y el contador de numeración de sus facturas, y no podrá deshacer esta acción.</translation>
    </message>
    <message>
      <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to 'Created' first.</source>
      <translation>La factura seleccionada está marcada como ya enviada. Si de verdad necesita eliminarla, vuelva a poner primero su estado en «Creada».</translation>
    </message>
    <message>
      <source>Delete Quote</source>
      <translation>Eliminar presupuesto</translation>
    </message>
    <message>
      <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
      <translation>Eliminar presupuestos es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el presupuesto seleccionado?</translation>
    </message>
    <message>
      <source>Delete Invoice</source>
      <translation>Eliminar factura</translation>
    </message>
    <message>
      <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
      <translation>Eliminar facturas es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar la factura seleccionada?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your quote counter so that you won't use the same quote number twice?</source>
      <translation>¿Quiere que Tamo ajuste automáticamente su contador de presupuestos para que no use dos veces el mismo número de presupuesto?</translation>
    </message>
    <message>
      <source>Do you want Tamo to automatically adjust your invoice counter so that you won't use the same invoice number twice?</source>
      <translation>¿Quiere que Tamo ajuste automáticamente su contador de facturas para que no use dos veces el mismo número de factura?</translation>
    </message>
    <message>
      <source>Set Delivery Date</source>
      <translation>Establecer fecha de entrega</translation>
    </message>
    <message>
      <source>Notification Already Created</source>
      <translation>Notificación ya creada</translation>
    </message>
    <message>
      <source>You've already created a notification for this invoice. Do you really want to create another one?</source>
      <translation>Ya ha creado una notificación para esta factura. ¿Seguro que quiere crear otra?</translation>
    </message>
    <message>
      <source>Schedule Notification</source>
      <translation>Programar notificación</translation>
    </message>
    <message>
      <source>Number:</source>
      <translation>Número:</translation>
    </message>
    <message>
      <source>Subject:</source>
      <translation>Asunto:</translation>
    </message>
    <message>
      <source>Date:</source>
      <translation>Fecha:</translation>
    </message>
    <message>
      <source>Status and Payment</source>
      <translation>Estado y pago</translation>
    </message>
    <message>
      <source>Status:</source>
      <translation>Estado:</translation>
    </message>
    <message>
      <source>Paid amount:</source>
      <translation>Importe pagado:</translation>
    </message>
    <message>
      <source>Payment date:</source>
      <translation>Fecha de pago:</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>Entrega</translation>
    </message>
    <message>
      <source>Dispatched</source>
      <translation>Expedido</translation>
    </message>
    <message>
      <source>Show the delivery date and note number on the document</source>
      <translation>Mostrar la fecha de entrega y el número de albarán en el documento</translation>
    </message>
    <message>
      <source>Delivery note no.:</source>
      <translation>N.º de albarán:</translation>
    </message>
    <message>
      <source>Today</source>
      <translation>Hoy</translation>
    </message>
    <message>
      <source>Set the delivery date to today</source>
      <translation>Establecer la fecha de entrega en hoy</translation>
    </message>
    <message>
      <source>Delivery date:</source>
      <translation>Fecha de entrega:</translation>
    </message>
    <message>
      <source>Valid until:</source>
      <translation>Válido hasta:</translation>
    </message>
    <message>
      <source>Due date:</source>
      <translation>Fecha de vencimiento:</translation>
    </message>
    <message>
      <source>New Template</source>
      <translation>Nueva plantilla</translation>
    </message>
    <message>
      <source>Apply Template</source>
      <translation>Aplicar plantilla</translation>
    </message>
    <message>
      <source>Delete Template</source>
      <translation>Eliminar plantilla</translation>
    </message>
    <message>
      <source>Edit Line</source>
      <translation>Editar línea</translation>
    </message>
    <message>
      <source>The file passes the EN 16931 and XRechnung rules.</source>
      <translation>El archivo cumple las reglas de EN 16931 y XRechnung.</translation>
    </message>
    <message>
      <source>Notes:</source>
      <translation>Notas:</translation>
    </message>
    <message>
      <source>1 rule broken: the recipient's validator will likely reject this file.</source>
      <translation>1 regla incumplida: es probable que el validador del destinatario rechace este archivo.</translation>
    </message>
    <message>
      <source>%1 rules broken: the recipient's validator will likely reject this file.</source>
      <translation>%1 reglas incumplidas: es probable que el validador del destinatario rechace este archivo.</translation>
    </message>
    <message>
      <source>Double-click a finding to go to what to change.</source>
      <translation>Haga doble clic en un hallazgo para ir a lo que debe cambiar.</translation>
    </message>
    <message>
      <source>Change: %1</source>
      <translation>Cambiar: %1</translation>
    </message>
    <message>
      <source>Export E-Invoice…</source>
      <translation>Exportar factura electrónica…</translation>
    </message>
    <message>
      <source>E-Invoice</source>
      <translation>Factura electrónica</translation>
    </message>
    <message>
      <source>E-Invoice Details…</source>
      <translation>Datos de factura electrónica…</translation>
    </message>
    <message>
      <source>E-Invoice Details</source>
      <translation>Datos de factura electrónica</translation>
    </message>
    <message>
      <source>About E-Invoicing…</source>
      <translation>Acerca de la facturación electrónica…</translation>
    </message>
    <message>
      <source>Send E-Invoice…</source>
      <translation>Enviar factura electrónica…</translation>
    </message>
    <message>
      <source>Write the conformant file</source>
      <translation>Escribir el archivo conforme</translation>
    </message>
    <message>
      <source>Export the selected invoice as an XRechnung e-invoice (UBL XML file). If the preferences ask for it, the invoice is marked as sent.</source>
      <translation>Exportar la factura seleccionada como factura electrónica XRechnung (archivo XML UBL). Si así lo indican las preferencias, la factura se marca como enviada.</translation>
    </message>
    <message>
      <source>Discount and shipping as allowances and charges per tax category, lines without taxes in an exemption category, totals computed from the lines: the structure the EN 16931 rules require. The standard file is written as Tamo always wrote it.</source>
      <translation>Descuento y gastos de envío como descuentos y recargos por categoría de impuesto, líneas sin impuestos en una categoría de exención, totales calculados a partir de las líneas: la estructura que exigen las reglas de EN 16931. El archivo estándar se escribe como Tamo lo ha escrito siempre.</translation>
    </message>
    <message>
      <source>Why they are untaxed, e.g. Kleinunternehmer gemäß § 19 UStG</source>
      <translation>Por qué no llevan impuestos, p. ej., Kleinunternehmer gemäß § 19 UStG</translation>
    </message>
    <message>
      <source>Lines without taxes:</source>
      <translation>Líneas sin impuestos:</translation>
    </message>
    <message>
      <source>Exemption reason:</source>
      <translation>Motivo de exención:</translation>
    </message>
    <message>
      <source>Rule check</source>
      <translation>Comprobación de reglas</translation>
    </message>
    <message>
      <source>Send by Mail…</source>
      <translation>Enviar por correo…</translation>
    </message>
    <message>
      <source>Preparing the document…</source>
      <translation>Preparando el documento…</translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n página</numerusform>
        <numerusform>%n páginas</numerusform>
      </translation>
    </message>
    <message>
      <source>Import Design?</source>
      <translation>¿Importar diseño?</translation>
    </message>
    <message>
      <source>"%1" is a Tamo design. Do you want to add it to your designs?</source>
      <translation>«%1» es un diseño de Tamo. ¿Desea añadirlo a sus diseños?</translation>
    </message>
    <message>
      <source>Another Tamo already listens at %1.</source>
      <translation>Otro Tamo ya está escuchando en %1.</translation>
    </message>
    <message>
      <source>Unable to listen at %1.</source>
      <translation>No se puede escuchar en %1.</translation>
    </message>
    <message>
      <source>FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!</source>
      <translation>¡ERROR! EL DISEÑO SELECCIONADO ESTÁ DEFECTUOSO, CORRUPTO O DAÑADO. ¡DEBE CORREGIRLO!</translation>
    </message>
    <message>
      <source>Invoice title</source>
      <translation>Título de factura</translation>
    </message>
    <message>
      <source>Quote title</source>
      <translation>Título de presupuesto</translation>
    </message>
    <message>
      <source>Reminder title</source>
      <translation>Título de recordatorio de pago</translation>
    </message>
    <message>
      <source>Delivery slip title</source>
      <translation>Título de albarán</translation>
    </message>
    <message>
      <source>Due date</source>
      <translation>Fecha de vencimiento</translation>
    </message>
    <message>
      <source>Valid until (quotes)</source>
      <translation>Válido hasta (presupuestos)</translation>
    </message>
    <message>
      <source>Overdue since (reminders)</source>
      <translation>Vencida desde (recordatorios de pago)</translation>
    </message>
    <message>
      <source>Invoice number</source>
      <translation>Número de factura</translation>
    </message>
    <message>
      <source>Quote number</source>
      <translation>Número de presupuesto</translation>
    </message>
    <message>
      <source>Client number</source>
      <translation>Número de cliente</translation>
    </message>
    <message>
      <source>Line number</source>
      <translation>Número de línea</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>Descripción</translation>
    </message>
    <message>
      <source>Article number</source>
      <translation>Número de artículo</translation>
    </message>
    <message>
      <source>Quantity</source>
      <translation>Cantidad</translation>
    </message>
    <message>
      <source>Unit</source>
      <translation>Unidad</translation>
    </message>
    <message>
      <source>Unit price</source>
      <translation>Precio unitario</translation>
    </message>
    <message>
      <source>Net</source>
      <translation>Neto</translation>
    </message>
    <message>
      <source>Subtotal</source>
      <translation>Subtotal</translation>
    </message>
    <message>
      <source>Taxes</source>
      <translation>Impuestos</translation>
    </message>
    <message>
      <source>Quotes</source>
      <translation>Presupuestos</translation>
    </message>
    <message>
      <source>Clients</source>
      <translation>Clientes</translation>
    </message>
    <message>
      <source>Reminders</source>
      <translation>Recordatorios de pago</translation>
    </message>
    <message>
      <source>Delivery slips</source>
      <translation>Albaranes</translation>
    </message>
    <message>
      <source>Numbers and Dates</source>
      <translation>Números y fechas</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>Etiquetas</translation>
    </message>
    <message>
      <source>Numbers</source>
      <translation>Números</translation>
    </message>
    <message>
      <source>Pattern</source>
      <translation>Patrón</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>Desplazamiento</translation>
    </message>
    <message>
      <source>Number new ones at once</source>
      <translation>Numerar los nuevos al crearlos</translation>
    </message>
    <message>
      <source>%COUNT% is the number of documents so far plus the offset, plus 1; %YEAR%, %MONTH% and %DAY% are today's. Raise the offset to continue from numbers written elsewhere.</source>
      <translation>%COUNT% es el número de documentos hasta ahora más el desplazamiento, más 1; %YEAR%, %MONTH% y %DAY% son los de hoy. Aumente el desplazamiento para continuar a partir de números emitidos en otro lugar.</translation>
    </message>
    <message>
      <source>Dates</source>
      <translation>Fechas</translation>
    </message>
    <message>
      <source>7 days</source>
      <translation>7 días</translation>
    </message>
    <message>
      <source>14 days</source>
      <translation>14 días</translation>
    </message>
    <message>
      <source>21 days</source>
      <translation>21 días</translation>
    </message>
    <message>
      <source>28 days</source>
      <translation>28 días</translation>
    </message>
    <message>
      <source>New invoices are due in</source>
      <translation>Las nuevas facturas vencen en</translation>
    </message>
    <message>
      <source>New quotes are valid for</source>
      <translation>Los nuevos presupuestos son válidos durante</translation>
    </message>
    <message>
      <source>Date pattern:</source>
      <translation>Patrón de fecha:</translation>
    </message>
    <message>
      <source>Today:</source>
      <translation>Hoy:</translation>
    </message>
    <message>
      <source>%DAY%, %MONTHSHORT% and %YEARSHORT% print two digits, %YEARLONG% four, %MONTHLONG% the month's name.</source>
      <translation>%DAY%, %MONTHSHORT% y %YEARSHORT% imprimen dos dígitos, %YEARLONG% cuatro y %MONTHLONG% el nombre del mes.</translation>
    </message>
    <message>
      <source>Documents</source>
      <translation>Documentos</translation>
    </message>
    <message>
      <source>Mark an invoice as sent when it is printed, saved, mailed or exported as an e-invoice</source>
      <translation>Marcar una factura como enviada cuando se imprima, se guarde, se envíe por correo o se exporte como factura electrónica</translation>
    </message>
    <message>
      <source>Lines are sorted by:</source>
      <translation>Las líneas se ordenan por:</translation>
    </message>
    <message>
      <source>The order they are stored in</source>
      <translation>El orden en que están guardadas</translation>
    </message>
    <message>
      <source>The order of entry</source>
      <translation>El orden de introducción</translation>
    </message>
    <message>
      <source>Conditions:</source>
      <translation>Condiciones:</translation>
    </message>
    <message>
      <source>Further text:</source>
      <translation>Texto adicional:</translation>
    </message>
    <message>
      <source>Footer:</source>
      <translation>Pie de página:</translation>
    </message>
    <message>
      <source>Texts of new</source>
      <translation>Textos iniciales para</translation>
    </message>
    <message>
      <source>New documents start with these texts; reminders and delivery slips show them on their sheet. The footer usually holds your bank details and registration numbers.</source>
      <translation>Los documentos nuevos empiezan con estos textos; los recordatorios de pago y los albaranes los muestran en su hoja. El pie de página suele contener sus datos bancarios y sus números de registro.</translation>
    </message>
    <message>
      <source>Mail message:</source>
      <translation>Mensaje de correo:</translation>
    </message>
    <message>
      <source>The words the designs print around your values, in the language of your documents.</source>
      <translation>Las palabras que los diseños imprimen junto a sus valores, en el idioma de sus documentos.</translation>
    </message>
    <message>
      <source>(none)</source>
      <translation>(ninguno)</translation>
    </message>
    <message>
      <source>(the pattern prints nothing)</source>
      <translation>(el patrón no imprime nada)</translation>
    </message>
    <message>
      <source>Add Line</source>
      <translation>Añadir línea</translation>
    </message>
    <message>
      <source>Search the catalog</source>
      <translation>Buscar en el catálogo</translation>
    </message>
    <message>
      <source>Article no.</source>
      <translation>N.º de artículo</translation>
    </message>
    <message>
      <source>Price</source>
      <translation>Precio</translation>
    </message>
    <message>
      <source>Use Entry</source>
      <translation>Usar entrada</translation>
    </message>
    <message>
      <source>New Line</source>
      <translation>Línea nueva</translation>
    </message>
    <message>
      <source>Catalog</source>
      <translation>Catálogo</translation>
    </message>
    <message>
      <source>Ledrix asked for invoices of the kind "%1", which Tamo does not know.</source>
      <translation>Ledrix solicitó facturas del tipo «%1», que Tamo no conoce.</translation>
    </message>
    <message>
      <source>Ledrix asked for the dates "%1" and "%2", which Tamo cannot read.</source>
      <translation>Ledrix solicitó las fechas «%1» y «%2», que Tamo no puede leer.</translation>
    </message>
    <message>
      <source>Could not generate import data.
Please check your import settings in Ledrix.</source>
      <translation>No se pudieron generar los datos de importación.
Compruebe la configuración de importación en Ledrix.</translation>
    </message>
    <message>
      <source>Could not write the import list for Ledrix.</source>
      <translation>No se pudo escribir la lista de importación para Ledrix.</translation>
    </message>
    <message>
      <source>Send Invoices To Ledrix</source>
      <translation>Enviar facturas a Ledrix</translation>
    </message>
    <message>
      <source>Send Invoices To Kelvane</source>
      <translation>Enviar facturas a Kelvane</translation>
    </message>
    <message>
      <source>Unable to create the folder %1.</source>
      <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
      <source>Could not write Ledrix/Kelvane export data.</source>
      <translation>No se pudieron escribir los datos de exportación para Ledrix/Kelvane.</translation>
    </message>
    <message>
      <source>Ledrix/Kelvane export file couldn't be opened. Please ensure that Ledrix or Kelvane is installed on your computer and running.</source>
      <translation>No se pudo abrir el archivo de exportación de Ledrix/Kelvane. Asegúrese de que Ledrix o Kelvane esté instalado en su equipo y en ejecución.</translation>
    </message>
    <message>
      <source>'Send To' is obsolete. Please directly import invoices from within Ledrix.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</source>
      <translation>«Enviar a» está obsoleto. Importe las facturas directamente desde Ledrix.

Ledrix &gt; Menü &gt; Ablage &gt; Posten aus anderen Programmen importieren …</translation>
    </message>
    <message>
      <source>Website</source>
      <translation>Sitio web</translation>
    </message>
    <message>
      <source>to</source>
      <translation>a</translation>
    </message>
    <message>
      <source>Every sent invoice</source>
      <translation>Todas las facturas enviadas</translation>
    </message>
    <message>
      <source>Paid invoices</source>
      <translation>Facturas pagadas</translation>
    </message>
    <message>
      <source>Overdue invoices</source>
      <translation>Facturas vencidas</translation>
    </message>
    <message>
      <source>One summary line per invoice</source>
      <translation>Una línea de resumen por factura</translation>
    </message>
    <message>
      <source>Every line of each invoice</source>
      <translation>Todas las líneas de cada factura</translation>
    </message>
    <message>
      <source>Dated from:</source>
      <translation>Con fecha del:</translation>
    </message>
    <message>
      <source>Invoices:</source>
      <translation>Facturas:</translation>
    </message>
    <message>
      <source>Lines:</source>
      <translation>Líneas:</translation>
    </message>
    <message>
      <source>Send</source>
      <translation>Enviar</translation>
    </message>
    <message>
      <source>No invoice matches.</source>
      <translation>Ninguna factura coincide.</translation>
    </message>
    <message>
      <source>1 invoice will be sent.</source>
      <translation>Se enviará 1 factura.</translation>
    </message>
    <message>
      <source>%1 invoices will be sent.</source>
      <translation>Se enviarán %1 facturas.</translation>
    </message>
    <message>
      <source>Second line (optional)</source>
      <translation>Segunda línea (opcional)</translation>
    </message>
    <message>
      <source>e.g. h, pcs</source>
      <translation>p. ej., h, uds.</translation>
    </message>
    <message>
      <source>Unit:</source>
      <translation>Unidad:</translation>
    </message>
    <message>
      <source>Quantity:</source>
      <translation>Cantidad:</translation>
    </message>
    <message>
      <source>Unit price:</source>
      <translation>Precio unitario:</translation>
    </message>
    <message>
      <source>Article no.:</source>
      <translation>N.º de artículo:</translation>
    </message>
    <message>
      <source>Note:</source>
      <translation>Nota:</translation>
    </message>
    <message>
      <source>Taxes:</source>
      <translation>Impuestos:</translation>
    </message>
    <message>
      <source>%1 (%2 %)</source>
      <translation>%1 (%2 %)</translation>
    </message>
    <message>
      <source>Tax %1</source>
      <translation>Impuesto %1</translation>
    </message>
    <message>
      <source>Delete Item</source>
      <translation>Eliminar línea</translation>
    </message>
    <message>
      <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
      <translation>Eliminar líneas es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar la línea seleccionada?</translation>
    </message>
    <message>
      <source>Delete Line</source>
      <translation>Eliminar línea</translation>
    </message>
    <message>
      <source>Default Title</source>
      <translation>Título predeterminado</translation>
    </message>
    <message>
      <source>Edit Shipping</source>
      <translation>Editar gastos de envío</translation>
    </message>
    <message>
      <source>Choose Shipping</source>
      <translation>Elegir gastos de envío</translation>
    </message>
    <message>
      <source>Edit Discount</source>
      <translation>Editar descuento</translation>
    </message>
    <message>
      <source>%1 %2 %</source>
      <translation>%1 %2 %</translation>
    </message>
    <message>
      <source>Article no. %1</source>
      <translation>N.º de artículo %1</translation>
    </message>
    <message>
      <source>Qty</source>
      <translation>Cant.</translation>
    </message>
    <message>
      <source>Unit Price</source>
      <translation>Precio unitario</translation>
    </message>
    <message>
      <source>Add Line…</source>
      <translation>Añadir línea…</translation>
    </message>
    <message>
      <source>Edit…</source>
      <translation>Editar…</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>Quitar</translation>
    </message>
    <message>
      <source>Shipping…</source>
      <translation>Gastos de envío…</translation>
    </message>
    <message>
      <source>Discount…</source>
      <translation>Descuento…</translation>
    </message>
    <message>
      <source>Sort</source>
      <translation>Ordenar</translation>
    </message>
    <message>
      <source>Order of the lines</source>
      <translation>Orden de las líneas</translation>
    </message>
    <message>
      <source>In Order of Entry</source>
      <translation>Por orden de introducción</translation>
    </message>
    <message>
      <source>By Title</source>
      <translation>Por título</translation>
    </message>
    <message>
      <source>By Amount</source>
      <translation>Por importe</translation>
    </message>
    <message>
      <source>As Stored</source>
      <translation>Según están guardadas</translation>
    </message>
    <message>
      <source>the Tamo window (process %1, started as “%2”)</source>
      <translation>la ventana de Tamo (proceso %1, iniciado como «%2»)</translation>
    </message>
    <message>
      <source>the command “%2” (process %1)</source>
      <translation>la orden «%2» (proceso %1)</translation>
    </message>
    <message>
      <source> on the computer %1</source>
      <translation> en el ordenador %1</translation>
    </message>
    <message>
      <source>Choose…</source>
      <translation>Elegir…</translation>
    </message>
    <message>
      <source>No logo</source>
      <translation>Sin logotipo</translation>
    </message>
    <message>
      <source>Designs that show a logo print a notice in its place until you choose one.</source>
      <translation>Los diseños que muestran un logotipo imprimen un aviso en su lugar hasta que usted elija uno.</translation>
    </message>
    <message>
      <source>Choose a Logo</source>
      <translation>Elegir un logotipo</translation>
    </message>
    <message>
      <source>Images (%1)</source>
      <translation>Imágenes (%1)</translation>
    </message>
    <message>
      <source>%1 is missing; it comes with the package xdg-utils.</source>
      <translation>Falta %1; se incluye en el paquete xdg-utils.</translation>
    </message>
    <message>
      <source>%1 ended with code %2.</source>
      <translation>%1 terminó con el código %2.</translation>
    </message>
    <message>
      <source>All Documents</source>
      <translation>Todos los documentos</translation>
    </message>
    <message>
      <source>Open Invoices</source>
      <translation>Facturas pendientes</translation>
    </message>
    <message>
      <source>Overdue and Partially Paid</source>
      <translation>Vencidas y pagadas parcialmente</translation>
    </message>
    <message>
      <source>Paid Invoices</source>
      <translation>Facturas pagadas</translation>
    </message>
    <message>
      <source>Last 12 Hours</source>
      <translation>Últimas 12 horas</translation>
    </message>
    <message>
      <source>Last Few Days</source>
      <translation>Últimos días</translation>
    </message>
    <message>
      <source>Last Two Weeks</source>
      <translation>Últimas dos semanas</translation>
    </message>
    <message>
      <source>Last Six Months</source>
      <translation>Últimos seis meses</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>&amp;Archivo</translation>
    </message>
    <message>
      <source>New &amp;Invoice</source>
      <translation>Nueva &amp;factura</translation>
    </message>
    <message>
      <source>New &amp;Quote</source>
      <translation>Nuevo &amp;presupuesto</translation>
    </message>
    <message>
      <source>&amp;Save</source>
      <translation>&amp;Guardar</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>&amp;Salir</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>&amp;Editar</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Deshacer</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Rehacer</translation>
    </message>
    <message>
      <source>&amp;Find…</source>
      <translation>&amp;Buscar…</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>&amp;Ver</translation>
    </message>
    <message>
      <source>&amp;Document</source>
      <translation>&amp;Documento</translation>
    </message>
    <message>
      <source>&amp;Client</source>
      <translation>&amp;Cliente</translation>
    </message>
    <message>
      <source>&amp;Items</source>
      <translation>C&amp;onceptos</translation>
    </message>
    <message>
      <source>&amp;Texts</source>
      <translation>&amp;Textos</translation>
    </message>
    <message>
      <source>D&amp;uplicate</source>
      <translation>D&amp;uplicar</translation>
    </message>
    <message>
      <source>Duplicate with &amp;Lines</source>
      <translation>Duplicar con &amp;líneas</translation>
    </message>
    <message>
      <source>&amp;Convert to Invoice</source>
      <translation>Con&amp;vertir en factura</translation>
    </message>
    <message>
      <source>Choose C&amp;lient…</source>
      <translation>Elegir clie&amp;nte…</translation>
    </message>
    <message>
      <source>&amp;Add Line…</source>
      <translation>&amp;Añadir línea…</translation>
    </message>
    <message>
      <source>S&amp;hipping…</source>
      <translation>&amp;Gastos de envío…</translation>
    </message>
    <message>
      <source>Disc&amp;ount…</source>
      <translation>Descuen&amp;to…</translation>
    </message>
    <message>
      <source>Set Deli&amp;very Date</source>
      <translation>Establecer fecha de &amp;entrega</translation>
    </message>
    <message>
      <source>&amp;Reminder…</source>
      <translation>&amp;Recordatorio de pago…</translation>
    </message>
    <message>
      <source>Delivery &amp;Slip…</source>
      <translation>Al&amp;barán…</translation>
    </message>
    <message>
      <source>Due-Date &amp;Notification…</source>
      <translation>Notificación de ven&amp;cimiento…</translation>
    </message>
    <message>
      <source>Main</source>
      <translation>Principal</translation>
    </message>
    <message>
      <source>&amp;Filter</source>
      <translation>&amp;Filtro</translation>
    </message>
    <message>
      <source>Filter the list</source>
      <translation>Filtrar la lista</translation>
    </message>
    <message>
      <source>&amp;Undo %1</source>
      <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
      <source>&amp;Redo %1</source>
      <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
      <source>Reminder</source>
      <translation>Recordatorio de pago</translation>
    </message>
    <message>
      <source>Delivery Slip</source>
      <translation>Albarán</translation>
    </message>
    <message>
      <source>Read-only: %1</source>
      <translation>Solo lectura: %1</translation>
    </message>
    <message>
      <source>%1 (read-only)</source>
      <translation>%1 (solo lectura)</translation>
    </message>
    <message>
      <source>Invoices: %1   Quotes: %2   Total: %3   Paid: %4   Due: %5</source>
      <translation>Facturas: %1   Presupuestos: %2   Total: %3   Pagado: %4   Pendiente: %5</translation>
    </message>
    <message>
      <source>Due-Date Notification</source>
      <translation>Notificación de vencimiento</translation>
    </message>
    <message>
      <source>Optional message</source>
      <translation>Mensaje opcional</translation>
    </message>
    <message>
      <source>Message:</source>
      <translation>Mensaje:</translation>
    </message>
    <message>
      <source>Remind me on:</source>
      <translation>Recordármelo el:</translation>
    </message>
    <message>
      <source>Schedule</source>
      <translation>Programar</translation>
    </message>
    <message>
      <source>The page renderer stopped unexpectedly.</source>
      <translation>El renderizador de páginas se detuvo inesperadamente.</translation>
    </message>
    <message>
      <source>The page renderer was stopped and cannot start again in this process.</source>
      <translation>El renderizador de páginas se detuvo y no puede volver a iniciarse en este proceso.</translation>
    </message>
    <message>
      <source>The page could not be handed to the renderer: %1</source>
      <translation>No se pudo entregar la página al renderizador: %1</translation>
    </message>
    <message>
      <source>The page could not be loaded.</source>
      <translation>No se pudo cargar la página.</translation>
    </message>
    <message>
      <source>The page could not be printed.</source>
      <translation>No se pudo imprimir la página.</translation>
    </message>
    <message>
      <source>The design's layout ran away: it made %1 pages, more than the %2 that are printed. Check the design's style sheet.</source>
      <translation>La maquetación del diseño se ha descontrolado: ha generado %1 páginas, más de las %2 que se imprimen. Revise la hoja de estilo del diseño.</translation>
    </message>
    <message>
      <source>The page took longer than %1 seconds to print, so it was stopped. The design's layout may be running away; check its style sheet.</source>
      <translation>La página tardó más de %1 segundos en imprimirse, por lo que se detuvo. Puede que la maquetación del diseño se haya descontrolado; revise su hoja de estilo.</translation>
    </message>
    <message>
      <source>&amp;Preferences…</source>
      <translation>&amp;Preferencias…</translation>
    </message>
    <message>
      <source>Setup &amp;Assistant…</source>
      <translation>&amp;Asistente de configuración…</translation>
    </message>
    <message>
      <source>no document is selected</source>
      <translation>no hay ningún documento seleccionado</translation>
    </message>
    <message>
      <source>step 2: the invoice amount is missing or 0</source>
      <translation>paso 2: falta el importe de la factura o es 0</translation>
    </message>
    <message>
      <source>step 3: the invoice has no items</source>
      <translation>paso 3: la factura no tiene líneas</translation>
    </message>
    <message>
      <source>step 4: discounts are not calculated before taxes (beforeTaxesBool)</source>
      <translation>paso 4: los descuentos no se calculan antes de impuestos (beforeTaxesBool)</translation>
    </message>
    <message>
      <source>step 5: the supplier setting %1 is empty</source>
      <translation>paso 5: el ajuste del proveedor %1 está vacío</translation>
    </message>
    <message>
      <source>step 6: the invoice's %1 is empty</source>
      <translation>paso 6: %1 de la factura está vacío</translation>
    </message>
    <message>
      <source>Paper and printing</source>
      <translation>Papel e impresión</translation>
    </message>
    <message>
      <source>Paper size:</source>
      <translation>Tamaño del papel:</translation>
    </message>
    <message>
      <source>US Letter</source>
      <translation>Carta (EE. UU.)</translation>
    </message>
    <message>
      <source>US Legal</source>
      <translation>Legal (EE. UU.)</translation>
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
      <translation>Imprimir sin márgenes (para diseños que definen los suyos)</translation>
    </message>
    <message>
      <source>Printing:</source>
      <translation>Impresión:</translation>
    </message>
    <message>
      <source>Print at once</source>
      <translation>Imprimir directamente</translation>
    </message>
    <message>
      <source>Show the print dialog first</source>
      <translation>Mostrar primero el diálogo de impresión</translation>
    </message>
    <message>
      <source>Files and notifications</source>
      <translation>Archivos y notificaciones</translation>
    </message>
    <message>
      <source>Save a document file as:</source>
      <translation>Guardar un archivo de documento como:</translation>
    </message>
    <message>
      <source>Tamo document (.tamo)</source>
      <translation>Documento de Tamo (.tamo)</translation>
    </message>
    <message>
      <source>XML property list (.xml)</source>
      <translation>Lista de propiedades XML (.xml)</translation>
    </message>
    <message>
      <source>Play a sound with due-date notifications</source>
      <translation>Reproducir un sonido con las notificaciones de vencimiento</translation>
    </message>
    <message>
      <source>Region</source>
      <translation>Región</translation>
    </message>
    <message>
      <source>No region is set for this system, so numbers are typed and shown as %1.</source>
      <translation>Este sistema no tiene ninguna región configurada, por lo que los números se escriben y se muestran como %1.</translation>
    </message>
    <message>
      <source>Numbers are typed and shown as the system's region has it: %1, for example %2.</source>
      <translation>Los números se escriben y se muestran según la región del sistema: %1, por ejemplo %2.</translation>
    </message>
    <message>
      <source>Document dates follow the date pattern of the Invoice pane.</source>
      <translation>Las fechas de los documentos siguen el patrón de fecha del panel Factura.</translation>
    </message>
    <message>
      <source>Show Delivery Slip</source>
      <translation>Mostrar albarán</translation>
    </message>
    <message>
      <source>Show Reminder</source>
      <translation>Mostrar recordatorio de pago</translation>
    </message>
    <message>
      <source>Preview (updating…)</source>
      <translation>Vista previa (actualizando…)</translation>
    </message>
    <message>
      <source>Choose &amp;Design…</source>
      <translation>Elegir &amp;diseño…</translation>
    </message>
    <message>
      <source>Document &amp;Templates…</source>
      <translation>&amp;Plantillas de documento…</translation>
    </message>
    <message>
      <source>Preview as Re&amp;minder</source>
      <translation>Vista previa como rec&amp;ordatorio de pago</translation>
    </message>
    <message>
      <source>Preview as Delivery Sli&amp;p</source>
      <translation>Vi&amp;sta previa como albarán</translation>
    </message>
    <message>
      <source>Refresh Pre&amp;view</source>
      <translation>Actuali&amp;zar vista previa</translation>
    </message>
    <message>
      <source>The report is bound to the arranged invoices in Tamo's main window. This means you can, for example, search for a client and therefore see the report just for this single client or you can pre-filter all your invoices to see a report only for overdue invoices.</source>
      <translation>El informe está vinculado a las facturas ordenadas en la ventana principal de Tamo. Esto significa que puede, por ejemplo, buscar un cliente y ver así el informe solo de ese cliente, o filtrar previamente todas sus facturas para ver un informe solo de las facturas vencidas.</translation>
    </message>
    <message>
      <source>Sales &amp;Report</source>
      <translation>&amp;Informe de ventas</translation>
    </message>
    <message>
      <source>Report</source>
      <translation>Informe</translation>
    </message>
    <message>
      <source>Counts and sums of the listed invoices</source>
      <translation>Recuentos y sumas de las facturas de la lista</translation>
    </message>
    <message>
      <source>Print &amp;Account Book…</source>
      <translation>Imprimir &amp;libro de cuentas…</translation>
    </message>
    <message>
      <source>&amp;Reports</source>
      <translation>&amp;Informes</translation>
    </message>
    <message>
      <source>Account Book</source>
      <translation>Libro de cuentas</translation>
    </message>
    <message>
      <source>Print Account Book</source>
      <translation>Imprimir libro de cuentas</translation>
    </message>
    <message>
      <source>The account book could not be printed.</source>
      <translation>No se pudo imprimir el libro de cuentas.</translation>
    </message>
    <message>
      <source>Date Range…</source>
      <translation>Intervalo de fechas…</translation>
    </message>
    <message>
      <source>Print…</source>
      <translation>Imprimir…</translation>
    </message>
    <message>
      <source>Sales Report</source>
      <translation>Informe de ventas</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>Actualizar</translation>
    </message>
    <message>
      <source>Documents of the main list: %1</source>
      <translation>Documentos de la lista principal: %1</translation>
    </message>
    <message>
      <source>All dates</source>
      <translation>Todas las fechas</translation>
    </message>
    <message>
      <source>%1 to %2</source>
      <translation>Del %1 al %2</translation>
    </message>
    <message>
      <source>Only documents dated in this range</source>
      <translation>Solo los documentos con fecha dentro de este intervalo</translation>
    </message>
    <message>
      <source>From:</source>
      <translation>Desde:</translation>
    </message>
    <message>
      <source>To:</source>
      <translation>Hasta:</translation>
    </message>
    <message>
      <source>Print Sales Report</source>
      <translation>Imprimir informe de ventas</translation>
    </message>
    <message>
      <source>%1 is marked as sent</source>
      <translation>%1 está marcado como enviado</translation>
    </message>
    <message>
      <source>Type a whole number, such as 0 or 12.</source>
      <translation>Escriba un número entero, como 0 o 12.</translation>
    </message>
    <message>
      <source>Type a percentage between 0 and 100, such as %1 or %2.</source>
      <translation>Escriba un porcentaje entre 0 y 100, como %1 o %2.</translation>
    </message>
    <message>
      <source>Your settings could not be saved to “%1”.</source>
      <translation>No se pudieron guardar sus ajustes en «%1».</translation>
    </message>
    <message>
      <source>Continue…</source>
      <translation>Continuar…</translation>
    </message>
    <message>
      <source>It seems that you've already setup E-Tamo and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
      <translation>Parece que ya ha configurado E-Tamo y ha ejecutado el asistente de configuración al menos una vez. Si lo vuelve a ejecutar, se eliminarán todas sus personalizaciones y se sustituirán por los valores predeterminados. ¿Realmente desea continuar?</translation>
    </message>
    <message>
      <source>Letter</source>
      <translation>Carta</translation>
    </message>
    <message>
      <source>Legal</source>
      <translation>Legal</translation>
    </message>
    <message>
      <source>A new invoice is titled “%1”, numbered like %2, in %3, with %4, printed on %5 paper.</source>
      <translation>Una factura nueva se titula «%1», se numera como %2, usa la moneda %3 (impuestos: %4) y se imprime en papel %5.</translation>
    </message>
    <message>
      <source>no taxes</source>
      <translation>ninguno</translation>
    </message>
    <message>
      <source> and </source>
      <translation> y </translation>
    </message>
    <message numerus="yes">
      <source>E-invoices still need %n supplier detail(s) in Edit → Preferences → Company.</source>
      <translation>
        <numerusform>A las facturas electrónicas aún les falta %n dato del proveedor en Editar → Preferencias → Empresa.</numerusform>
        <numerusform>A las facturas electrónicas aún les faltan %n datos del proveedor en Editar → Preferencias → Empresa.</numerusform>
      </translation>
    </message>
    <message>
      <source>Yes, please!</source>
      <translation>¡Sí, por favor!</translation>
    </message>
    <message>
      <source>RTFM</source>
      <translation>Leer el manual</translation>
    </message>
    <message>
      <source>Would you like to take a quick look at the illustrated and easy-to-understand instructions before you create your first invoice?</source>
      <translation>¿Desea echar un vistazo rápido a las instrucciones ilustradas y fáciles de entender antes de crear su primera factura?</translation>
    </message>
    <message>
      <source>No, I prefer to suffer in silence.</source>
      <translation>No, prefiero sufrir en silencio.</translation>
    </message>
    <message>
      <source>Back</source>
      <translation>Atrás</translation>
    </message>
    <message>
      <source>Continue</source>
      <translation>Continuar</translation>
    </message>
    <message>
      <source>Setup Assistant</source>
      <translation>Asistente de configuración</translation>
    </message>
    <message>
      <source>Welcome to Tamo</source>
      <translation>Bienvenido a Tamo</translation>
    </message>
    <message>
      <source>In which language do you write your invoices? Tamo fills its settings with starting values for it: the labels and texts of your documents, number patterns, date format, currency, taxes and paper size. You can change each of them later in the preferences.</source>
      <translation>¿En qué idioma escribe sus facturas? Tamo rellena su configuración con valores iniciales para ese idioma: las etiquetas y los textos de sus documentos, los patrones de numeración, el formato de fecha, la moneda, los impuestos y el tamaño del papel. Puede cambiar cada uno de ellos más adelante en las preferencias.</translation>
    </message>
    <message>
      <source>Your Business</source>
      <translation>Su empresa</translation>
    </message>
    <message>
      <source>This is how your documents name you. Everything can be changed later under Edit → Preferences → Company.</source>
      <translation>Así es como sus documentos le nombran. Todo puede cambiarse más adelante en Editar → Preferencias → Empresa.</translation>
    </message>
    <message>
      <source>E-Invoices</source>
      <translation>Facturas electrónicas</translation>
    </message>
    <message>
      <source>Public clients in Germany, and more and more businesses, ask for e-invoices (XRechnung). For them, Tamo needs these details of your business. You can fill them in later as well.</source>
      <translation>Los clientes públicos de Alemania, y cada vez más empresas, exigen facturas electrónicas (XRechnung). Para ellas, Tamo necesita estos datos de su empresa. También puede rellenarlos más adelante.</translation>
    </message>
    <message>
      <source>All Set</source>
      <translation>Todo listo</translation>
    </message>
    <message>
      <source>Create your first invoice with File → New Invoice, choose its look with Document → Choose Design, and find every setting under Edit → Preferences. The assistant can be run again from the Edit menu.</source>
      <translation>Cree su primera factura con Archivo → Nueva factura, elija su aspecto con Documento → Elegir diseño y encuentre todas las opciones en Editar → Preferencias. El asistente puede volver a ejecutarse desde el menú Editar.</translation>
    </message>
    <message>
      <source>Quit Tamo</source>
      <translation>Salir de Tamo</translation>
    </message>
    <message>
      <source>Start Using Tamo</source>
      <translation>Empezar a usar Tamo</translation>
    </message>
    <message>
      <source>Charge shipping</source>
      <translation>Cobrar gastos de envío</translation>
    </message>
    <message>
      <source>Remembered</source>
      <translation>Recordados</translation>
    </message>
    <message>
      <source>This store is open for reading only, so nothing in it can be changed. %1</source>
      <translation>Este almacén está abierto solo para lectura, así que no se puede cambiar nada en él. %1</translation>
    </message>
    <message>
      <source>The store “%1” could not be opened.</source>
      <translation>No se pudo abrir el almacén «%1».</translation>
    </message>
    <message>
      <source>It holds no Tamo data, and it may only be read.</source>
      <translation>No contiene datos de Tamo y solo se puede leer.</translation>
    </message>
    <message>
      <source>The store “%1” could not be read.</source>
      <translation>No se pudo leer el almacén «%1».</translation>
    </message>
    <message>
      <source>Your changes were not saved.</source>
      <translation>Sus cambios no se han guardado.</translation>
    </message>
    <message>
      <source>The lock file “%1” could not be made.</source>
      <translation>No se pudo crear el archivo de bloqueo «%1».</translation>
    </message>
    <message>
      <source>The store “%1” is in use by %2.</source>
      <translation>El almacén «%1» lo está usando %2.</translation>
    </message>
    <message>
      <source>Close that window first, or make the change there.</source>
      <translation>Cierre primero esa ventana o haga el cambio allí.</translation>
    </message>
    <message>
      <source>Try again when it has finished.</source>
      <translation>Vuelva a intentarlo cuando haya terminado.</translation>
    </message>
    <message>
      <source>Tamo first saves a complete backup of the database, then copies the database to “%1” and continues with it there. The database in “%2” is left as it is.</source>
      <translation>Tamo primero guarda una copia de seguridad completa de la base de datos; después copia la base de datos a «%1» y continúa con ella allí. La base de datos de «%2» se deja tal como está.</translation>
    </message>
    <message>
      <source>The Tamo database already in “%1” will be replaced.</source>
      <translation>Se sustituirá la base de datos de Tamo que ya existe en «%1».</translation>
    </message>
    <message>
      <source>Move</source>
      <translation>Mover</translation>
    </message>
    <message>
      <source>Move Database</source>
      <translation>Mover base de datos</translation>
    </message>
    <message>
      <source>Legal name</source>
      <translation>Razón social</translation>
    </message>
    <message>
      <source>As registered</source>
      <translation>Tal como está registrada</translation>
    </message>
    <message>
      <source>Such as DE123456789</source>
      <translation>Por ejemplo, DE123456789</translation>
    </message>
    <message>
      <source>Company ID</source>
      <translation>Identificador de la empresa</translation>
    </message>
    <message>
      <source>Optional: register or tax number</source>
      <translation>Opcional: número de registro o número fiscal</translation>
    </message>
    <message>
      <source>Tax scheme</source>
      <translation>Régimen fiscal</translation>
    </message>
    <message>
      <source>VAT</source>
      <translation>VAT</translation>
    </message>
    <message>
      <source>Postal code</source>
      <translation>Código postal</translation>
    </message>
    <message>
      <source>Country code</source>
      <translation>Código de país</translation>
    </message>
    <message>
      <source>Two letters, such as DE</source>
      <translation>Dos letras, como DE</translation>
    </message>
    <message>
      <source>Contact person</source>
      <translation>Persona de contacto</translation>
    </message>
    <message>
      <source>Phone</source>
      <translation>Teléfono</translation>
    </message>
    <message>
      <source>Mail address</source>
      <translation>Dirección de correo electrónico</translation>
    </message>
    <message>
      <source>IBAN</source>
      <translation>IBAN</translation>
    </message>
    <message>
      <source>Electronic address (GLN)</source>
      <translation>Dirección electrónica (GLN)</translation>
    </message>
    <message>
      <source>Optional; without it, the mail address</source>
      <translation>Opcional; sin ella, la dirección de correo electrónico</translation>
    </message>
    <message>
      <source>New clients taken from the address book get:</source>
      <translation>Los clientes nuevos tomados de la libreta de direcciones reciben:</translation>
    </message>
    <message>
      <source>this tax scheme</source>
      <translation>este régimen fiscal</translation>
    </message>
    <message>
      <source>this country code</source>
      <translation>este código de país</translation>
    </message>
    <message>
      <source>this currency</source>
      <translation>esta moneda</translation>
    </message>
    <message>
      <source>The e-invoice check finds every supplier detail it needs.</source>
      <translation>La comprobación de facturas electrónicas encuentra todos los datos del proveedor que necesita.</translation>
    </message>
    <message>
      <source>The e-invoice check still misses: %1.</source>
      <translation>A la comprobación de facturas electrónicas aún le falta: %1.</translation>
    </message>
    <message>
      <source>, </source>
      <translation>, </translation>
    </message>
    <message>
      <source>Tamo cannot answer this request.</source>
      <translation>Tamo no puede responder a esta solicitud.</translation>
    </message>
    <message>
      <source>The address is %1 characters long, longer than any request to Tamo.</source>
      <translation>La dirección tiene %1 caracteres, más que cualquier solicitud a Tamo.</translation>
    </message>
    <message>
      <source>"%1" is not a tamo:// address.</source>
      <translation>«%1» no es una dirección tamo://.</translation>
    </message>
    <message>
      <source>A request to Tamo has no path.</source>
      <translation>Una solicitud a Tamo no tiene ruta.</translation>
    </message>
    <message>
      <source>Tamo does not know the request "%1".</source>
      <translation>Tamo no conoce la solicitud «%1».</translation>
    </message>
    <message>
      <source>The request to import into Ledrix lacks its "%1".</source>
      <translation>A la solicitud de importación a Ledrix le falta «%1».</translation>
    </message>
    <message>
      <source>Taxes of new documents and lines</source>
      <translation>Impuestos de los nuevos documentos y líneas</translation>
    </message>
    <message>
      <source>Rate (%)</source>
      <translation>Tipo (%)</translation>
    </message>
    <message>
      <source>Compound</source>
      <translation>Compuesto</translation>
    </message>
    <message>
      <source>A tax that is switched on is offered for each line and printed in the totals. A compound tax is levied on the net plus the taxes before it.</source>
      <translation>Un impuesto activado se ofrece para cada línea y se imprime en los totales. Un impuesto compuesto se aplica sobre el neto más los impuestos anteriores.</translation>
    </message>
    <message>
      <source>Totals and lines</source>
      <translation>Totales y líneas</translation>
    </message>
    <message>
      <source>Take the discount off before taxes (e-invoices need this)</source>
      <translation>Restar el descuento antes de impuestos (necesario para las facturas electrónicas)</translation>
    </message>
    <message>
      <source>Show each line's tax amounts</source>
      <translation>Mostrar los importes de impuestos de cada línea</translation>
    </message>
    <message>
      <source>Show each line's net amount</source>
      <translation>Mostrar el importe neto de cada línea</translation>
    </message>
    <message>
      <source>Show article numbers</source>
      <translation>Mostrar los números de artículo</translation>
    </message>
    <message>
      <source>A new document template takes over</source>
      <translation>Una plantilla de documento nueva incluye</translation>
    </message>
    <message>
      <source>Its texts, currency and tax rates are always taken over.</source>
      <translation>Sus textos, su moneda y sus tipos impositivos se incluyen siempre.</translation>
    </message>
    <message>
      <source>Keep the list of templates open after applying one</source>
      <translation>Mantener abierta la lista de plantillas después de aplicar una</translation>
    </message>
    <message>
      <source>Document Templates</source>
      <translation>Plantillas de documento</translation>
    </message>
    <message>
      <source>A new template takes over</source>
      <translation>Una plantilla nueva incluye</translation>
    </message>
    <message>
      <source>Save Current as Template…</source>
      <translation>Guardar actual como plantilla…</translation>
    </message>
    <message>
      <source>Save as Template</source>
      <translation>Guardar como plantilla</translation>
    </message>
    <message>
      <source>Name of the template:</source>
      <translation>Nombre de la plantilla:</translation>
    </message>
    <message>
      <source>Payment terms, validity</source>
      <translation>Condiciones de pago, validez</translation>
    </message>
    <message>
      <source>Closing words, bank details</source>
      <translation>Palabras de cierre, datos bancarios</translation>
    </message>
    <message>
      <source>Private notes:</source>
      <translation>Notas privadas:</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>No se imprimen</translation>
    </message>
    <message>
      <source>It holds no keyed archive.</source>
      <translation>No contiene ningún archivo con claves.</translation>
    </message>
    <message>
      <source>Its root object is empty.</source>
      <translation>Su objeto raíz está vacío.</translation>
    </message>
    <message>
      <source>It holds %1 where an object reference belongs.</source>
      <translation>Contiene %1 donde corresponde una referencia de objeto.</translation>
    </message>
    <message>
      <source>It refers to object %1 of %2.</source>
      <translation>Remite al objeto %1 de %2.</translation>
    </message>
    <message>
      <source>Its objects unfold far beyond the size of the file.</source>
      <translation>Sus objetos se despliegan mucho más allá del tamaño del archivo.</translation>
    </message>
    <message>
      <source>Its objects nest too deeply.</source>
      <translation>Sus objetos están demasiado anidados.</translation>
    </message>
    <message>
      <source>A date lies too far from today.</source>
      <translation>Una fecha está demasiado lejos de hoy.</translation>
    </message>
    <message>
      <source>Object %1 is %2.</source>
      <translation>El objeto %1 es %2.</translation>
    </message>
    <message>
      <source>Object %1 contains itself.</source>
      <translation>El objeto %1 se contiene a sí mismo.</translation>
    </message>
    <message>
      <source>A data object holds no bytes.</source>
      <translation>Un objeto de datos no contiene ningún byte.</translation>
    </message>
    <message>
      <source>It holds an object of class “%1”, which Tamo does not read.</source>
      <translation>Contiene un objeto de la clase «%1», que Tamo no lee.</translation>
    </message>
    <message>
      <source>A dictionary has no matching keys and values.</source>
      <translation>Un diccionario no tiene claves y valores que se correspondan.</translation>
    </message>
    <message>
      <source>A dictionary has a key that is not text.</source>
      <translation>Un diccionario tiene una clave que no es texto.</translation>
    </message>
    <message>
      <source>A list has no members.</source>
      <translation>Una lista no tiene elementos.</translation>
    </message>
    <message>
      <source>A text object holds no text.</source>
      <translation>Un objeto de texto no contiene texto.</translation>
    </message>
    <message>
      <source>A date holds no time.</source>
      <translation>Una fecha no contiene ninguna hora.</translation>
    </message>
    <message>
      <source>A decimal number is malformed.</source>
      <translation>Un número decimal está mal formado.</translation>
    </message>
    <message>
      <source>Preferences</source>
      <translation>Preferencias</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>Empresa</translation>
    </message>
    <message>
      <source>Design</source>
      <translation>Diseño</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>Plantilla</translation>
    </message>
    <message>
      <source>Data</source>
      <translation>Datos</translation>
    </message>
    <message>
      <source>Region and Output</source>
      <translation>Región y salida</translation>
    </message>
    <message>
      <source>The file does not hold a Tamo database alone.</source>
      <translation>El archivo no contiene solo una base de datos de Tamo.</translation>
    </message>
    <message>
      <source>Its table “%1” has a column “%2” that Tamo does not make.</source>
      <translation>Su tabla «%1» tiene una columna «%2» que Tamo no crea.</translation>
    </message>
    <message>
      <source>Its table “%1” is not defined as Tamo defines it.</source>
      <translation>Su tabla «%1» no está definida como la define Tamo.</translation>
    </message>
    <message>
      <source>Its table “meta” is not defined as Tamo defines it.</source>
      <translation>Su tabla «meta» no está definida como la define Tamo.</translation>
    </message>
    <message>
      <source>a trigger</source>
      <translation>un disparador</translation>
    </message>
    <message>
      <source>a view</source>
      <translation>una vista</translation>
    </message>
    <message>
      <source>an index</source>
      <translation>un índice</translation>
    </message>
    <message>
      <source>a table</source>
      <translation>una tabla</translation>
    </message>
    <message>
      <source>It holds %1 “%2”, which a Tamo database never has.</source>
      <translation>Contiene %1 «%2», algo que una base de datos de Tamo nunca tiene.</translation>
    </message>
    <message>
      <source>SQLite gave no result.</source>
      <translation>SQLite no dio ningún resultado.</translation>
    </message>
    <message>
      <source>%1 is taxed at the %2 with a rate of 0: give the tax a rate, or leave the tax off.</source>
      <translation>%1 tiene la categoría «%2» con un tipo 0: asigne un tipo al impuesto o quite el impuesto.</translation>
    </message>
    <message>
      <source>%1 is %2 and needs a rate of 0.</source>
      <translation>%1 está en la categoría «%2» y necesita un tipo 0.</translation>
    </message>
    <message>
      <source>%1 is %2 and may not give a rate.</source>
      <translation>%1 está en la categoría «%2» y no puede indicar un tipo.</translation>
    </message>
    <message>
      <source>Items are taxed at the %1, but the tax breakdown has no subtotal for it.</source>
      <translation>Hay elementos gravados con «%1», pero el desglose de impuestos no tiene ningún subtotal para esta categoría.</translation>
    </message>
    <message>
      <source>The tax breakdown has a subtotal at the %1 that no line, allowance or charge uses.</source>
      <translation>El desglose de impuestos tiene un subtotal con «%1» que no usa ninguna línea, descuento ni recargo.</translation>
    </message>
    <message>
      <source>Items %1 need exactly one subtotal in the tax breakdown; it has %2.</source>
      <translation>Los elementos de la categoría «%1» necesitan exactamente un subtotal en el desglose de impuestos; hay %2.</translation>
    </message>
    <message>
      <source>The taxable amount of the subtotal “%1” (%2) is not the sum of its lines, less allowances and plus charges (%3).</source>
      <translation>La base imponible del subtotal «%1» (%2) no es la suma de sus líneas menos los descuentos más los recargos (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal at %1 % (%2) is not its taxable amount times the rate (%3).</source>
      <translation>El impuesto del subtotal al %1 % (%2) no es su base imponible por el tipo (%3).</translation>
    </message>
    <message>
      <source>The tax of the subtotal “%1” must be 0.</source>
      <translation>El impuesto del subtotal «%1» debe ser 0.</translation>
    </message>
    <message>
      <source>Items %1 need the reason of the exemption in the tax breakdown: enter it on the e-invoice sheet (for example the law that exempts them).</source>
      <translation>Los elementos de la categoría «%1» necesitan el motivo de la exención en el desglose de impuestos: introdúzcalo en la hoja de factura electrónica (por ejemplo, la ley que los exime).</translation>
    </message>
    <message>
      <source>The subtotal “%1” may not give an exemption reason.</source>
      <translation>El subtotal «%1» no puede indicar un motivo de exención.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the delivery date.</source>
      <translation>Las entregas intracomunitarias necesitan la fecha de entrega.</translation>
    </message>
    <message>
      <source>Intra-community supplies need the country they are delivered to.</source>
      <translation>Las entregas intracomunitarias necesitan el país al que se entregan.</translation>
    </message>
    <message>
      <source>An invoice not subject to VAT may have no other subtotal in its tax breakdown.</source>
      <translation>Una factura no sujeta a IVA no puede tener ningún otro subtotal en su desglose de impuestos.</translation>
    </message>
    <message>
      <source>in memory</source>
      <translation>en memoria</translation>
    </message>
    <message>
      <source>It may only be read.</source>
      <translation>Solo se puede leer.</translation>
    </message>
    <message>
      <source>The file is damaged.</source>
      <translation>El archivo está dañado.</translation>
    </message>
    <message>
      <source>It is not a database.</source>
      <translation>No es una base de datos.</translation>
    </message>
    <message>
      <source>Another program is using it.</source>
      <translation>Otro programa lo está usando.</translation>
    </message>
    <message>
      <source>There is not enough memory.</source>
      <translation>No hay suficiente memoria.</translation>
    </message>
    <message>
      <source>The store “%1” could not be changed.</source>
      <translation>No se pudo cambiar el almacén «%1».</translation>
    </message>
    <message>
      <source>The store “%1” could not be written.</source>
      <translation>No se pudo escribir el almacén «%1».</translation>
    </message>
  </context>
</TS>
