#include "reports/printertextview.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextList>
#include <QTextTable>
#include <algorithm>

namespace tamo {

namespace {

const QString kRecursion = QStringLiteral("Error: Recursion");

// The styles a value takes from the tag it replaces.
struct TagStyle {
    QTextCharFormat character;
    QTextBlockFormat block;
};

TagStyle styleAt(const QTextCursor& occurrence)
{
    QTextCursor first(occurrence.document());
    first.setPosition(occurrence.selectionStart() + 1);  // the format of the tag's first character
    return {first.charFormat(), first.blockFormat()};
}

// `value` as a fragment in the tag's font, colour, kerning and paragraph style.
QTextDocumentFragment styledCopy(const QTextDocument& value, const TagStyle& style)
{
    const auto copy = std::unique_ptr<QTextDocument>(value.clone());
    replaceFontFamily(*copy, style.character.font().family());
    QTextCharFormat carried;
    if (style.character.hasProperty(QTextFormat::ForegroundBrush)) {
        carried.setForeground(style.character.foreground());
    }
    carried.setFontKerning(style.character.fontKerning());
    QTextCursor all(copy.get());
    all.select(QTextCursor::Document);
    all.mergeCharFormat(carried);
    all.mergeBlockFormat(style.block);
    return QTextDocumentFragment(all);
}

bool framesDrawNothing(const QTextFrame& frame)
{
    const QTextFrameFormat f = frame.frameFormat();
    if ((f.border() > 0 && f.borderStyle() != QTextFrameFormat::BorderStyle_None) ||
        f.hasProperty(QTextFormat::BackgroundBrush)) {
        return false;
    }
    if (const auto* table = qobject_cast<const QTextTable*>(&frame)) {
        for (int r = 0; r < table->rows(); ++r) {
            for (int c = 0; c < table->columns(); ++c) {
                const QTextTableCellFormat cell = table->cellAt(r, c).format().toTableCellFormat();
                if (cell.hasProperty(QTextFormat::BackgroundBrush) ||
                    cell.hasProperty(QTextFormat::TableCellTopBorder) ||
                    cell.hasProperty(QTextFormat::TableCellBottomBorder) ||
                    cell.hasProperty(QTextFormat::TableCellLeftBorder) ||
                    cell.hasProperty(QTextFormat::TableCellRightBorder)) {
                    return false;
                }
            }
        }
    }
    const auto children = frame.childFrames();
    return std::all_of(children.begin(), children.end(),
                       [](const QTextFrame* child) { return framesDrawNothing(*child); });
}

// Whether the glyphs of the text are all that the document draws.
bool onlyGlyphs(const QTextDocument& document)
{
    if (!framesDrawNothing(*document.rootFrame())) {
        return false;
    }
    for (QTextBlock b = document.begin(); b.isValid(); b = b.next()) {
        const QTextBlockFormat block = b.blockFormat();
        if (b.textList() || block.hasProperty(QTextFormat::BackgroundBrush) ||
            block.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
            return false;
        }
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat c = it.fragment().charFormat();
            if (c.objectType() != QTextFormat::NoObject || c.isImageFormat() ||
                c.hasProperty(QTextFormat::BackgroundBrush) || c.fontUnderline() ||
                c.fontStrikeOut() || c.fontOverline() || c.isAnchor() ||
                c.hasProperty(QTextFormat::TextOutline)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

PrinterTextView::PrinterTextView(const QRectF& frame, const QSizeF& inset,
                                 std::optional<QColor> background)
    : frame_(frame), inset_(inset), background_(background)
{
}

PrinterTextView::PrinterTextView(const QRectF& frame, const StyledText& text, const QSizeF& inset,
                                 std::optional<QColor> background)
    : PrinterTextView(frame, inset, background)
{
    document_ = makeLayoutDocument();
    text.build(*document_);
}

PrinterTextView::~PrinterTextView() = default;

qreal PrinterTextView::usedTextHeight()
{
    if (!document_) {
        return frame_.height() - 2 * inset_.height();
    }
    const qreal width = std::max<qreal>(0, frame_.width() - 2 * inset_.width());
    if (document_->textWidth() != width) {
        document_->setTextWidth(width);
    }
    return document_->documentLayout()->documentSize().height();
}

QString PrinterTextView::text() const
{
    return document_ ? document_->toPlainText() : frozenText_;
}

void PrinterTextView::substituteVariables(const PrinterVariables& variables)
{
    for (const auto& [key, value] : variables) {
        if (!document_ || !document_->toPlainText().contains(u'<')) {
            return;  // no tag can be left
        }
        if (!std::holds_alternative<std::monostate>(value)) {
            replaceText(QStringLiteral("<%1/>").arg(key), value);
        }
    }
}

void PrinterTextView::replaceText(const QString& tag, const PrinterValue& value)
{
    if (!document_ || std::holds_alternative<std::monostate>(value)) {
        return;
    }
    // Found without regard to case, as QTextDocument::find does unless told otherwise.
    for (QTextCursor found = document_->find(tag); !found.isNull(); found = document_->find(tag)) {
        const TagStyle style = styleAt(found);
        if (const auto* plain = std::get_if<QString>(&value)) {
            if (plain->contains(tag, Qt::CaseInsensitive)) {
                found.insertText(kRecursion, style.character);
                break;
            }
            found.insertText(*plain, style.character);
            continue;
        }
        const auto styled = makeLayoutDocument();
        std::get<StyledText>(value).build(*styled);
        if (styled->toPlainText().contains(tag, Qt::CaseInsensitive)) {
            found.insertText(kRecursion, style.character);
            break;
        }
        found.insertFragment(styledCopy(*styled, style));
    }
}

void PrinterTextView::drawText(QPainter& painter) const
{
    painter.setPen(Qt::black);
    document_->drawContents(&painter);
}

void PrinterTextView::draw(QPainter& painter) const
{
    painter.save();
    const QRectF frame(frame_.topLeft(),
                       QSizeF(frame_.width(), std::max<qreal>(0, frame_.height())));
    painter.setClipRect(frame, Qt::IntersectClip);
    if (background_) {
        painter.fillRect(frame, *background_);
    }
    painter.translate(frame.topLeft() + QPointF(inset_.width(), inset_.height()));
    if (document_) {
        drawText(painter);
    } else {
        for (const Glyphs& g : glyphs_) {
            painter.setPen(g.colour);
            painter.drawGlyphRun(QPointF(0, 0), g.run);
        }
    }
    painter.restore();
}

std::unique_ptr<PrinterTextView> PrinterTextView::copy() const
{
    auto view = std::unique_ptr<PrinterTextView>(new PrinterTextView(frame_, inset_, background_));
    if (document_) {
        view->document_.reset(document_->clone());
        view->document_->setUndoRedoEnabled(false);
    } else {
        view->glyphs_ = glyphs_;
        view->frozenText_ = frozenText_;
    }
    return view;
}

void PrinterTextView::freeze()
{
    if (!document_ || document_->toPlainText().contains(u'<') || !onlyGlyphs(*document_)) {
        return;
    }
    usedTextHeight();  // laid out at the frame's width
    const QAbstractTextDocumentLayout* layout = document_->documentLayout();
    std::vector<Glyphs> glyphs;
    for (QTextBlock b = document_->begin(); b.isValid(); b = b.next()) {
        const QTextLayout* text = b.layout();
        if (!text) {
            continue;
        }
        const QPointF origin = layout->blockBoundingRect(b).topLeft();
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QBrush foreground = fragment.charFormat().foreground();
            const QColor colour =
                foreground.style() == Qt::NoBrush ? QColor(Qt::black) : foreground.color();
            for (QGlyphRun run :
                 text->glyphRuns(fragment.position() - b.position(), fragment.length())) {
                QList<QPointF> positions = run.positions();
                for (QPointF& p : positions) {
                    p += origin;
                }
                run.setPositions(positions);
                glyphs.push_back({std::move(run), colour});
            }
        }
    }
    glyphs_ = std::move(glyphs);
    frozenText_ = document_->toPlainText();
    document_.reset();
}

void PrinterTextView::moveToMainThread()
{
    if (document_ && QCoreApplication::instance()) {
        document_->moveToThread(QCoreApplication::instance()->thread());
    }
}

}  // namespace tamo
