#include "desktop/text_surface_widget.h"

#include <algorithm>

#include <QAction>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QStringList>

#include "desktop/fixed_font.h"
#include "forms/files.h"
#include "forms/page_text.h"

namespace
{
    /// Blank lines above the first one that is not are a print position below other controls; a window has its layout
    /// for that.
    TextPage withoutBlankLinesAbove(TextPage page)
    {
        const auto isBlank = [](const std::string& line) { return line.find_first_not_of(' ') == std::string::npos; };
        page.lines.erase(page.lines.begin(), std::find_if_not(page.lines.begin(), page.lines.end(), isBlank));
        return page;
    }
}

TextSurfaceWidget::TextSurfaceWidget(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFont(fixedFont());
}

void TextSurfaceWidget::showPage(const TextPage& page)
{
    const TextPage below = withoutBlankLinesAbove(page);
    if (below == shown)
        return;
    shown = below;
    const int across = horizontalScrollBar()->value();
    const int down = verticalScrollBar()->value();
    const std::string lines = textOf(shown);
    setPlainText(QString::fromUtf8(lines.data(), static_cast<qsizetype>(lines.size())).chopped(lines.empty() ? 0 : 1));
    horizontalScrollBar()->setValue(across);
    verticalScrollBar()->setValue(down);
}

bool TextSurfaceWidget::saveText(const QString& path, QString& wrong) const
{
    const auto failure = replaceFile(path.toStdString(), textOf(shown));
    wrong = QString::fromStdString(failure.value_or(""));
    return !failure;
}

bool TextSurfaceWidget::saveCsv(const QString& path, QString& wrong) const
{
    const auto failure = replaceFile(path.toStdString(), csvOf(shown));
    wrong = QString::fromStdString(failure.value_or(""));
    return !failure;
}

void TextSurfaceWidget::saveAs(const QString& filter, const QString& ending,
                               bool (TextSurfaceWidget::*save)(const QString&, QString&) const)
{
    QString path = QFileDialog::getSaveFileName(this, tr("Save as"), "table" + ending, filter);
    if (path.isEmpty())
        return;
    QString wrong;
    if (!(this->*save)(path, wrong))
        QMessageBox::warning(this, tr("Not saved"), tr("%1 could not be written: %2").arg(path, wrong));
}

void TextSurfaceWidget::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    QAction* const asText = menu->addAction(tr("Save as &text..."));
    QAction* const asCsv = menu->addAction(tr("Save as CS&V..."));
    asText->setEnabled(!shown.lines.empty());
    asCsv->setEnabled(!shown.lines.empty());
    connect(asText, &QAction::triggered, this,
            [this] { saveAs(tr("Text (*.txt)"), ".txt", &TextSurfaceWidget::saveText); });
    connect(asCsv, &QAction::triggered, this,
            [this] { saveAs(tr("CSV (*.csv)"), ".csv", &TextSurfaceWidget::saveCsv); });
    menu->popup(event->globalPos());
}
