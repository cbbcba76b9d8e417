#pragma once

#include <QPlainTextEdit>
#include <QString>

#include "model/text_page.h"

/// Lines of fixed-pitch text that can be selected, copied, and saved as text or CSV.
class TextSurfaceWidget : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextSurfaceWidget(QWidget* parent = nullptr);

    void showPage(const TextPage& page);

    /// A copy of what is shown; false if the file can't be written. The fault's words then stand in `wrong`.
    bool saveText(const QString& path, QString& wrong) const;
    bool saveCsv(const QString& path, QString& wrong) const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void saveAs(const QString& filter, const QString& ending,
                bool (TextSurfaceWidget::*save)(const QString&, QString&) const);

    TextPage shown;
};
