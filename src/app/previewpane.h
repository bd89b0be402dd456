#pragma once

#include <QWidget>

class QListWidget;
class QPdfDocument;
class QPdfView;

namespace tamo {

// A PDF beside the editor: page pictures down the side, one page at a time, fitted to the width.
class PreviewPane : public QWidget {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);

    // Shows the file, staying on the page that was shown when there still is one.
    void showFile(const QString& path);
    // Shows nothing.
    void clear();
    QPdfDocument* document() const { return document_; }
    QPdfView* view() const { return view_; }
    int pageCount() const;

private:
    void fillThumbnails();

    QPdfDocument* document_;
    QPdfView* view_;
    QListWidget* thumbnails_;
};

}  // namespace tamo
