#pragma once

#include <QFont>
#include <QString>
#include <memory>
#include <optional>

class QTextDocument;

namespace tamo {

// Styled text for the page layout, kept as what it is made from: an HTML fragment, or plain text
// in one font. It becomes a QTextDocument when a view lays it out, so that thousands of blocks
// waiting for their page cost only their source, and the parsing can run beside other work.
class StyledText {
public:
    StyledText() = default;
    // The fragment as ISO 8859-1 text parsed as HTML: characters beyond that set are written as
    // character references first, so that none is lost on the way.
    static StyledText fromHtml(const QString& html);
    static StyledText fromPlainText(const QString& text, const QFont& font);

    bool isEmpty() const { return source_.isEmpty(); }
    // Builds the text into `document`, which should be empty.
    void build(QTextDocument& document) const;
    // The text without its styles.
    QString plainText() const;

    friend StyledText attributedStringByReplacingFont(const StyledText& text, const QFont& font);

private:
    enum class Kind { Html, Plain };
    Kind kind_ = Kind::Plain;
    QString source_;
    QFont font_;                     // plain text only
    std::optional<QString> family_;  // every run moved to this family
};

// The size every fragment starts from, as a web page's default text: 12 units, which are points
// on the printed page.
inline constexpr int kDefaultTextPixelSize = 12;

// A copy of `text` in which every run of text is moved to the family of `font`, keeping its own
// size and weight and slant; the size of `font` is not used.
StyledText attributedStringByReplacingFont(const StyledText& text, const QFont& font);
// The same, at once, on a built document.
void replaceFontFamily(QTextDocument& document, const QString& family);

// `html` with every character outside ISO 8859-1 written as a character reference ("€" becomes
// "&#8364;").
QString latin1Html(const QString& html);

// A document set up for the page layout: no margin of its own, design metrics (the same widths
// on every device), units that are points on the page.
std::unique_ptr<QTextDocument> makeLayoutDocument();

}  // namespace tamo
