#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QRectF>
#include <QString>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "reports/styledtext.h"

class QPainter;
class QTextDocument;

namespace tamo {

// A value for a variable tag: plain text takes the styles of the tag it replaces, styled text
// keeps its own (moved to the tag's font). Any other value is skipped.
using PrinterValue = std::variant<std::monostate, QString, StyledText>;
// Variables by name, in the order they are applied.
using PrinterVariables = std::vector<std::pair<QString, PrinterValue>>;

// A block of styled text placed on a page: its frame (in points, y growing downwards), the inset
// of the text inside the frame, and a background. Tags written "<name/>" in its text can be
// replaced by variables.
//
// Once nothing can change a view any more (its text holds no "<", so no tag can be in it), it can
// keep just the glyphs its laid-out text draws, a fifth of the memory and three times faster to
// draw; a book of ten thousand blocks depends on that.
class PrinterTextView {
public:
    PrinterTextView(const QRectF& frame, const StyledText& text, const QSizeF& inset = {},
                    std::optional<QColor> background = std::nullopt);
    ~PrinterTextView();
    PrinterTextView(const PrinterTextView&) = delete;
    PrinterTextView& operator=(const PrinterTextView&) = delete;

    QRectF frame() const { return frame_; }
    void setFrame(const QRectF& frame) { frame_ = frame; }
    QSizeF textContainerInset() const { return inset_; }
    std::optional<QColor> backgroundColor() const { return background_; }

    // Lays the text out at the frame's width less the insets; the height it takes.
    qreal usedTextHeight();
    // The text without its styles.
    QString text() const;
    // The laid-out text; none once frozen.
    const QTextDocument* document() const { return document_.get(); }

    // Replaces the tag "<KEY/>" of each variable by its value, until no "<" is left.
    void substituteVariables(const PrinterVariables& variables);
    // Replaces every occurrence of `tag`, found without regard to case. A value that holds the
    // tag itself puts "Error: Recursion" in the first place instead and ends there.
    void replaceText(const QString& tag, const PrinterValue& value);

    // Draws the view at its frame, clipped to it.
    void draw(QPainter& painter) const;
    // A deep copy, as a page gets of the document's header and footer.
    std::unique_ptr<PrinterTextView> copy() const;

    // Keeps only the glyphs of the text when no tag can be in it and the glyphs are all the text
    // draws (no borders, fills, pictures, list marks or lines); `isFrozen` tells.
    void freeze();
    bool isFrozen() const { return !document_; }
    // Hands the laid-out text to the thread of the application, after a worker made it.
    void moveToMainThread();

private:
    PrinterTextView(const QRectF& frame, const QSizeF& inset, std::optional<QColor> background);
    void drawText(QPainter& painter) const;

    QRectF frame_;
    QSizeF inset_;
    std::optional<QColor> background_;
    std::unique_ptr<QTextDocument> document_;
    struct Glyphs {
        QGlyphRun run;  // positions from the inset's corner
        QColor colour;
    };
    std::vector<Glyphs> glyphs_;  // the text once frozen
    QString frozenText_;
};

}  // namespace tamo
