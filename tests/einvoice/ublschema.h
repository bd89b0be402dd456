#pragma once

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <QString>
#include <QStringList>

namespace tamo::test {

// The OASIS UBL 2.1 Invoice schema, read once from the shared folder beside the sources.
class UblSchema {
public:
    static const UblSchema& invoice()
    {
        static const UblSchema schema(TAMO_UBL_SCHEMA_DIR "/maindoc/UBL-Invoice-2.1.xsd");
        return schema;
    }

    // Every complaint of the validator; empty for a valid invoice.
    QStringList problems(const QString& xml) const
    {
        QStringList problems;
        if (!schema_) {
            return {QStringLiteral("the schema could not be read")};
        }
        xmlSchemaValidCtxtPtr validator = xmlSchemaNewValidCtxt(schema_);
        xmlSchemaSetValidStructuredErrors(validator, collect, &problems);
        const QByteArray bytes = xml.toUtf8();
        xmlDocPtr doc = xmlReadMemory(bytes.constData(), int(bytes.size()), "invoice.xml", nullptr,
                                      XML_PARSE_NONET);
        if (!doc) {
            problems << QStringLiteral("not well-formed XML");
        } else if (xmlSchemaValidateDoc(validator, doc) != 0 && problems.isEmpty()) {
            problems << QStringLiteral("invalid");
        }
        xmlFreeDoc(doc);
        xmlSchemaFreeValidCtxt(validator);
        return problems;
    }

private:
    explicit UblSchema(const char* path)
    {
        xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(path);
        schema_ = xmlSchemaParse(parser);
        xmlSchemaFreeParserCtxt(parser);
    }

    static void collect(void* problems, xmlErrorPtr error)
    {
        static_cast<QStringList*>(problems)->append(
            QStringLiteral("line %1: %2").arg(error->line).arg(QString::fromUtf8(error->message)));
    }

    xmlSchemaPtr schema_ = nullptr;
};

}  // namespace tamo::test
