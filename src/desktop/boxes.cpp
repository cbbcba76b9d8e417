#include "desktop/boxes.h"

#include <optional>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QStatusBar>

namespace
{
    QString text(const std::string& bytes)
    {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

    /// A box with plain text; what a runner typed is never read as markup.
    int showBox(QWidget* window, QMessageBox::Icon icon, const Message& message, QMessageBox::StandardButtons buttons,
                const QString& more = {})
    {
        QMessageBox box(icon, text(message.title), text(message.text), buttons, window);
        box.setTextFormat(Qt::PlainText);
        box.setTextInteractionFlags(Qt::TextSelectableByMouse);
        box.setInformativeText(more);
        return box.exec();
    }

    /// The path of a file that a person picks, or nothing.
    std::optional<std::string> chosenFile(QWidget* window, const FileQuestion& question)
    {
        QStringList patterns;
        for (const std::string& pattern : question.patterns)
            patterns << text(pattern);
        const QString filter =
            QString("%1 (%2);;%3 (*)").arg(text(question.kind), patterns.join(' '), QObject::tr("All files"));
        const QString path = QFileDialog::getOpenFileName(window, text(question.title), {}, filter);
        if (path.isEmpty())
            return std::nullopt;
        return path.toStdString();
    }

    void showFault(QWidget* inFront, QMainWindow* window, const FaultReport& fault)
    {
        if (fault.keystroke && window)
            window->statusBar()->showMessage(text(fault.text) + " " + adviceFor(fault));
        else
            showBox(inFront, QMessageBox::Warning, {fault.text, "Calculation stopped"}, QMessageBox::Ok,
                    adviceFor(fault));
    }
}

QString adviceFor(const FaultReport& fault)
{
    const auto stoppedWhile = [&fault](const char* words) { return fault.text.find(words) != std::string::npos; };
    if (stoppedWhile("of the personal data file"))
        return QObject::tr(
            "The values before that line are on the main form, those from it on are as they were. Correct the "
            "line, then open the file again.");
    if (stoppedWhile(" age"))
        return QObject::tr("All entries are kept. Check the age, correct it and press Re-Calculate.");
    if (stoppedWhile("rating the time"))
        return QObject::tr("All entries are kept. Check the comparison level, which must be above 0, and the age; then "
                           "press Re-Calculate.");
    if (stoppedWhile("race file"))
        return QObject::tr(
            "What the file held before is still there, and what is listed stays. A race number is 1 to 32767, times "
            "and distances go up to 3.4E+38, and the list has room for 99 races.");
    if (stoppedWhile("heart rate"))
        return QObject::tr("All entries are kept. Check the heart rates and the age.");
    return QObject::tr("All entries are kept. Check the races: a time or a distance may not be what you meant, or the "
                       "races are too different to be one runner's. Try fewer races, then press Re-Calculate.");
}

Dialogs boxesOver(const std::function<QMainWindow*(const std::string&)>& windowOf)
{
    const auto inFront = [windowOf]() -> QWidget* {
        QWidget* const active = QApplication::activeWindow();
        return active ? active : windowOf("vantstart");
    };
    Dialogs dialogs;
    dialogs.message = [inFront](const Message& message) {
        showBox(inFront(), QMessageBox::Information, message, QMessageBox::Ok);
    };
    dialogs.ask = [inFront](const Message& question) {
        return showBox(inFront(), QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) ==
               QMessageBox::Yes;
    };
    dialogs.chooseFile = [inFront](const FileQuestion& question) { return chosenFile(inFront(), question); };
    dialogs.beep = [] { QApplication::beep(); };
    dialogs.fault = [inFront, windowOf](const FaultReport& fault) {
        showFault(inFront(), windowOf(fault.where.substr(0, fault.where.find('.'))), fault);
    };
    return dialogs;
}
