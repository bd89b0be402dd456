#include "reports/styledtext.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace tamo {

StyledText StyledText::fromHtml(const QString& html)
{
    StyledText text;
    text.kind_ = Kind::Html;
    text.source_ = latin1Html(html);
    return text;
}

StyledText StyledText::fromPlainText(const QString& plain, const QFont& font)
{
    StyledText text;
    text.kind_ = Kind::Plain;
    text.source_ = plain;
    text.font_ = font;
    return text;
}

void StyledText::build(QTextDocument& document) const
{
    if (kind_ == Kind::Html) {
        // The bytes are ISO 8859-1 by now, so reading them back as such is the parser's input.
        document.setHtml(QString::fromLatin1(source_.toLatin1()));
    } else {
        QTextCursor cursor(&document);
        QTextCharFormat format;
        format.setFont(font_);
        cursor.setBlockCharFormat(format);
        cursor.insertText(source_, format);
    }
    if (family_) {
        replaceFontFamily(document, *family_);
    }
}

QString StyledText::plainText() const
{
    if (kind_ == Kind::Plain) {
        return source_;
    }
    const auto document = makeLayoutDocument();
    build(*document);
    return document->toPlainText();
}

StyledText attributedStringByReplacingFont(const StyledText& text, const QFont& font)
{
    StyledText copy = text;
    copy.family_ = font.family();
    return copy;
}

void replaceFontFamily(QTextDocument& document, const QString& family)
{
    // Only the family is set, so each run keeps its size, weight and slant.
    QTextCharFormat familyOnly;
    familyOnly.setFontFamilies({family});
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        cursor.mergeBlockCharFormat(familyOnly);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(familyOnly);
    }
}

QString latin1Html(const QString& html)
{
    QString out;
    out.reserve(html.size());
    for (qsizetype i = 0; i < html.size(); ++i) {
        const QChar c = html[i];
        if (c.unicode() <= 0xff) {
            out.append(c);
            continue;
        }
        char32_t code = c.unicode();
        if (c.isHighSurrogate() && i + 1 < html.size() && html[i + 1].isLowSurrogate()) {
            code = QChar::surrogateToUcs4(c, html[++i]);
        }
        out += QStringLiteral("&#%1;").arg(quint32(code));
    }
    return out;
}

std::unique_ptr<QTextDocument> makeLayoutDocument()
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDocumentMargin(0);
    document->setUseDesignMetrics(true);
    QFont base = document->defaultFont();
    base.setPixelSize(kDefaultTextPixelSize);
    document->setDefaultFont(base);
    return document;
}

}  // namespace tamo
