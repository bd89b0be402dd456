#include "einvoice/ubltree.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstring>

namespace tamo {

bool EinvoiceField::operator==(const EinvoiceField& other) const
{
    const bool sameKey = key == other.key || (key && other.key && std::strcmp(key, other.key) == 0);
    return kind == other.kind && number == other.number && sameKey;
}

const UblNode* UblNode::child(QStringView childName) const
{
    for (const UblNode& c : children) {
        if (c.name == childName) {
            return &c;
        }
    }
    return nullptr;
}

const UblNode* UblNode::at(QStringView path) const
{
    const UblNode* node = this;
    for (const QStringView step : path.tokenize(u'/')) {
        node = node->child(step);
        if (!node) {
            return nullptr;
        }
    }
    return node;
}

std::vector<const UblNode*> UblNode::all(QStringView path) const
{
    const qsizetype slash = path.lastIndexOf(u'/');
    const UblNode* parent = slash < 0 ? this : at(path.left(slash));
    std::vector<const UblNode*> found;
    if (parent) {
        const QStringView last = path.mid(slash + 1);
        for (const UblNode& c : parent->children) {
            if (c.name == last) {
                found.push_back(&c);
            }
        }
    }
    return found;
}

QString UblNode::textAt(QStringView path) const
{
    const UblNode* node = at(path);
    return node ? node->text : QString();
}

QString UblNode::attribute(QStringView attributeName) const
{
    for (const auto& [key, value] : attributes) {
        if (key == attributeName) {
            return value;
        }
    }
    return {};
}

bool UblNode::hasAttribute(QStringView attributeName) const
{
    for (const auto& attribute : attributes) {
        if (attribute.first == attributeName) {
            return true;
        }
    }
    return false;
}

namespace {

void write(QXmlStreamWriter& xml, const UblNode& node)
{
    if (node.children.empty() && node.attributes.empty()) {
        xml.writeTextElement(node.name, node.text);
        return;
    }
    xml.writeStartElement(node.name);
    for (const auto& [key, value] : node.attributes) {
        xml.writeAttribute(key, value);
    }
    if (node.children.empty()) {
        xml.writeCharacters(node.text);
    }
    for (const UblNode& c : node.children) {
        write(xml, c);
    }
    xml.writeEndElement();
}

}  // namespace

QString serialise(const UblDocument& document)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(document.root.name);
    xml.writeDefaultNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:Invoice-2"));
    xml.writeNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonAggregateComponents-2"),
        QStringLiteral("cac"));
    xml.writeNamespace(
        QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonBasicComponents-2"),
        QStringLiteral("cbc"));
    xml.writeComment(document.comment);
    for (const UblNode& c : document.root.children) {
        write(xml, c);
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return QString::fromUtf8(bytes);
}

std::expected<UblDocument, QString> parseUbl(const QString& xml)
{
    QXmlStreamReader reader(xml);
    UblDocument document;
    std::vector<UblNode*> open;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            UblNode* node = &document.root;
            if (!open.empty()) {
                open.back()->children.emplace_back();
                node = &open.back()->children.back();
            }
            node->name = reader.qualifiedName().toString();
            for (const QXmlStreamAttribute& a : reader.attributes()) {
                node->attributes.emplace_back(a.qualifiedName().toString(), a.value().toString());
            }
            open.push_back(node);
            break;
        }
        case QXmlStreamReader::EndElement:
            if (open.back()->children.empty() == false) {
                open.back()->text.clear();  // the indentation between children
            }
            open.pop_back();
            break;
        case QXmlStreamReader::Characters:
            if (!open.empty()) {
                open.back()->text += reader.text();
            }
            break;
        case QXmlStreamReader::Comment:
            if (document.comment.isEmpty()) {
                document.comment = reader.text().toString();
            }
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        return std::unexpected(
            QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
    }
    return document;
}

UblBuilder::UblBuilder(QString rootName) : last_(&root_)
{
    root_.name = std::move(rootName);
    stack_.push_back(&root_);
}

void UblBuilder::open(const char* name, EinvoiceField source, Kept kept)
{
    UblNode& parent = current();
    parent.children.push_back({.name = QString::fromLatin1(name),
                               .attributes = {},
                               .text = {},
                               .children = {},
                               .source = source.isNone() ? parent.source : source,
                               .kept = kept});
    last_ = &parent.children.back();
    stack_.push_back(last_);
}

void UblBuilder::close()
{
    stack_.pop_back();
}

UblNode& UblBuilder::leaf(const char* name, const QString& text, EinvoiceField source, Kept kept)
{
    open(name, source, kept);
    last_->text = text;
    close();
    return *last_;
}

void UblBuilder::inside(const char* parent, const char* name, const QString& text,
                        EinvoiceField source)
{
    open(parent, source);
    leaf(name, text);
    close();
}

UblNode UblBuilder::take()
{
    return std::move(root_);
}

}  // namespace tamo
