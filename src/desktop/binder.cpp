#include "desktop/binder.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include "desktop/list_presses.h"
#include "desktop/paste_filter.h"
#include "desktop/picture_widget.h"
#include "desktop/text_surface_widget.h"

namespace
{
    QString text(const std::string& bytes)
    {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

    QString withoutMnemonic(QString caption)
    {
        return caption.replace("&&", "\x01").remove('&').replace('\x01', '&');
    }

    /// The letter behind the mark, or none.
    QChar mnemonicOf(QString caption)
    {
        const qsizetype mark = caption.replace("&&", "\x01\x01").indexOf('&');
        return mark < 0 || mark + 1 == caption.size() ? QChar() : caption[mark + 1];
    }

    /// Writes a caption unless the widget has it already. The mnemonic that the layout gave stays where the new caption
    /// has the letter.
    template <class Widget>
    void showCaption(const Control& control, Widget& widget)
    {
        const QString caption = text(control.caption);
        if (caption.isEmpty() || withoutMnemonic(widget.text()) == caption)
            return;
        const QChar mnemonic = mnemonicOf(widget.text());
        QString shown = QString(caption).replace("&", "&&");
        const qsizetype at = mnemonic.isNull() ? -1 : shown.indexOf(mnemonic, 0, Qt::CaseInsensitive);
        widget.setText(at < 0 ? shown : shown.insert(at, '&'));
    }

    void showCommon(const Control& control, QWidget& widget, bool enabled)
    {
        widget.setEnabled(enabled);
        widget.setVisible(control.visible);
    }

    /// ", row 2" for a control of an array: its caption alone would not tell which one it is.
    QString rowOf(const Control& control)
    {
        const std::size_t bracket = control.name.find('(');
        return bracket == std::string::npos ? QString()
                                            : QString(", row %1").arg(std::atoi(&control.name[bracket + 1]) + 1);
    }

    void describe(const Control& control, QWidget& widget)
    {
        widget.setToolTip(text(control.tip));
        widget.setAccessibleDescription(text(control.tip));
        if (widget.accessibleName().isEmpty())
            widget.setAccessibleName(text(control.caption.empty() ? control.tip : control.caption) + rowOf(control));
    }

    void show(const TextBox& box, QLineEdit& edit)
    {
        const QString shown = text(box.text);
        if (edit.text() != shown)
        {
            const int cursor = edit.cursorPosition();
            edit.setText(shown);
            edit.setCursorPosition(std::min(cursor, static_cast<int>(shown.size())));
        }
        if (box.locked)
            edit.setReadOnly(true);
        showCommon(box, edit, box.enabled);
    }

    /// A label shows its text as it is, never as markup; black is the palette's own colour.
    void show(const Label& label, QLabel& widget)
    {
        widget.setTextFormat(Qt::PlainText);
        widget.setText(text(label.caption));
        const Colour colour = label.colour;
        widget.setStyleSheet(
            colour == Colour{} ? QString()
                               : QString("color: rgb(%1, %2, %3)").arg(colour.red).arg(colour.green).arg(colour.blue));
        showCommon(label, widget, label.enabled);
    }

    /// The Tab key stops once a group: at the option that is on, or at the first while none is.
    void placeTabStop(const QButtonGroup& group)
    {
        const QList<QAbstractButton*> buttons = group.buttons();
        const QAbstractButton* const on = group.checkedButton();
        for (QAbstractButton* const button : buttons)
            button->setFocusPolicy(button == (on ? on : buttons.front()) ? Qt::StrongFocus : Qt::ClickFocus);
    }

    /// Radio buttons of one group can only all be off while the group does not insist on one.
    void show(const OptionButton& option, QRadioButton& button)
    {
        showCaption(option, button);
        QButtonGroup* const group = button.group();
        const bool switchedOff = button.isChecked() && !option.chosen;
        if (group && switchedOff)
            group->setExclusive(false);
        button.setChecked(option.chosen);
        if (group && switchedOff)
            group->setExclusive(true);
        if (group)
            placeTabStop(*group);
        showCommon(option, button, option.enabled);
    }

    void show(const CheckBox& box, QCheckBox& widget)
    {
        showCaption(box, widget);
        widget.setChecked(box.ticked);
        showCommon(box, widget, box.enabled);
    }

    void show(const Button& button, QPushButton& widget)
    {
        showCaption(button, widget);
        showCommon(button, widget, button.enabled);
    }

    void show(const ScrollBar& bar, QScrollBar& widget)
    {
        widget.setRange(bar.min, bar.max);
        widget.setSingleStep(bar.smallStep);
        widget.setPageStep(bar.largeStep);
        widget.setValue(bar.value);
        showCommon(bar, widget, bar.enabled);
    }

    void show(const ListBox& list, QListWidget& widget)
    {
        QStringList items;
        for (const std::string& item : list.items)
            items << text(item);
        QStringList shown;
        for (int row = 0; row < widget.count(); ++row)
            shown << widget.item(row)->text();
        if (items != shown)
        {
            widget.clear();
            widget.addItems(items);
        }
        if (list.selected < 0)
            widget.clearSelection();
        else
            widget.setCurrentRow(list.selected);
        showCommon(list, widget, list.enabled);
    }

    /// The row that is marked; -1 while none is, also where one has the focus.
    int selectedRow(const QListWidget& widget)
    {
        const QList<QListWidgetItem*> items = widget.selectedItems();
        return items.isEmpty() ? -1 : widget.row(items.first());
    }

    void show(const MenuItem& item, QAction& action)
    {
        showCaption(item, action);
        action.setChecked(item.ticked);
        action.setEnabled(item.enabled);
        action.setVisible(item.visible);
    }

    void show(const TextSurface& surface, TextSurfaceWidget& widget)
    {
        widget.showPage(surface.page);
        showCommon(surface, widget, surface.enabled);
    }

    void show(const Picture& picture, PictureWidget& widget)
    {
        widget.showPicture(picture);
        showCommon(picture, widget, picture.enabled);
    }

    /// Connects controls of one form with the widgets of one window.
    struct Binding
    {
        Program& program;
        Form& form;
        QWidget& window;
        QObject& lifetime;
        QStringList mismatches = {};

        template <class Widget>
        Widget* widgetOf(const Control& control)
        {
            const QString name = widgetName(control.name);
            auto* const widget = window.findChild<Widget*>(name);
            if (!widget)
                mismatches << (window.findChild<QObject*>(name)
                                   ? name + " is no " + Widget::staticMetaObject.className()
                                   : "no widget " + name);
            return widget;
        }

        /// Shows a control in its widget now and after each of its changes.
        template <class Record, class Widget>
        void follow(Record& record, Widget& widget)
        {
            const auto write = [&record, &widget, &shown = program] {
                const QSignalBlocker quiet(widget);
                show(record, widget);
                if constexpr (requires { record.opens; })
                    if (!record.opens.empty() && !hasForm(shown, record.opens))
                        widget.setEnabled(false);
            };
            record.shown = write;
            write();
        }

        /// Makes an event of what a person did. The widget shows the control again afterwards, also where the control
        /// has not taken the entry, unless the event has ended the form.
        template <class Record, class Action>
        void happen(Record& record, bool keystroke, Action action)
        {
            const QPointer<QObject> alive(&lifetime);
            const std::string where = form.name + "." + record.name;
            enter(program, where, keystroke, [&record, action] { action(record); });
            if (alive)
                notifyShown(record);
        }

        template <class Record, class Sender, class Signal, class Action>
        void on(Record& record, Sender* sender, Signal signal, bool keystroke, Action action)
        {
            QObject::connect(sender, signal, &lifetime,
                             [*this, &record, keystroke, action]() mutable { happen(record, keystroke, action); });
        }

        void operator()(TextBox* box)
        {
            auto* const edit = widgetOf<QLineEdit>(*box);
            if (!edit)
                return;
            describe(*box, *edit);
            follow(*box, *edit);
            on(*box, edit, &QLineEdit::textChanged, true,
               [edit](TextBox& record) { setText(record, edit->text().toStdString()); });
            if (box->pasted)
                new PasteFilter(
                    *edit, [*this, box](const QString& clip) { return offer(*box, clip); }, &lifetime);
        }

        void operator()(Label* label)
        {
            auto* const widget = widgetOf<QLabel>(*label);
            if (widget)
                follow(*label, *widget);
        }

        void operator()(OptionButton* option)
        {
            auto* const button = widgetOf<QRadioButton>(*option);
            if (!button)
                return;
            describe(*option, *button);
            joinGroup(*option, *button);
            follow(*option, *button);
            on(*option, button, &QRadioButton::clicked, false, [](OptionButton& record) { setChosen(record, true); });
        }

        void operator()(CheckBox* box)
        {
            auto* const widget = widgetOf<QCheckBox>(*box);
            if (!widget)
                return;
            describe(*box, *widget);
            follow(*box, *widget);
            on(*box, widget, &QCheckBox::clicked, false,
               [widget](CheckBox& record) { setTicked(record, widget->isChecked()); });
        }

        void operator()(Button* button)
        {
            auto* const widget = widgetOf<QPushButton>(*button);
            if (!widget)
                return;
            describe(*button, *widget);
            follow(*button, *widget);
            on(*button, widget, &QPushButton::clicked, false, [](Button& record) { fire(record.clicked); });
        }

        void operator()(ScrollBar* bar)
        {
            auto* const widget = widgetOf<QScrollBar>(*bar);
            if (!widget)
                return;
            describe(*bar, *widget);
            widget->setInvertedControls(false);   // the right arrow key adds, on a bar that is an entry
            follow(*bar, *widget);
            on(*bar, widget, &QScrollBar::valueChanged, true, [widget](ScrollBar& record) {
                if (widget->isSliderDown())
                    drag(record, widget->value());
                else
                    setValue(record, widget->value());
            });
            on(*bar, widget, &QScrollBar::sliderReleased, true, [](ScrollBar& record) { release(record); });
        }

        void operator()(ListBox* list)
        {
            auto* const widget = widgetOf<QListWidget>(*list);
            if (!widget)
                return;
            describe(*list, *widget);
            follow(*list, *widget);
            const auto selectShown = [widget](ListBox& record) { select(record, selectedRow(*widget)); };
            if (list->entered)
            {
                widget->setProperty(takesEnter, true);
                on(*list, widget, &QListWidget::itemActivated, false,
                   [widget](ListBox& record) { select(record, widget->currentRow()); });   // marked or not
                return;
            }
            on(*list, widget, &QListWidget::itemSelectionChanged, false, selectShown);
            on(*list, new ListPresses(*widget, &lifetime), &ListPresses::pressedAgain, false, selectShown);
        }

        void operator()(MenuItem* item)
        {
            if (!item->clicked)
            {
                if (auto* const menu = widgetOf<QMenu>(*item))
                    follow(*item, *menu->menuAction());
                return;
            }
            auto* const action = widgetOf<QAction>(*item);
            if (!action)
                return;
            follow(*item, *action);
            on(*item, action, &QAction::triggered, false, [](MenuItem& record) { fire(record.clicked); });
        }

        void operator()(TextSurface* surface)
        {
            auto* const widget = widgetOf<TextSurfaceWidget>(*surface);
            if (!widget)
                return;
            describe(*surface, *widget);
            follow(*surface, *widget);
        }

        void operator()(Picture* picture)
        {
            auto* const widget = widgetOf<PictureWidget>(*picture);
            if (!widget)
                return;
            describe(*picture, *widget);
            widget->setButton(picture->isButton);
            follow(*picture, *widget);
            bindMouse(*picture, *widget);
        }

    private:
        /// Whether a box has taken a paste.
        bool offer(TextBox& box, const QString& clip) const
        {
            bool taken = true;   // what stops with a fault was a table
            enter(program, form.name + "." + box.name, false, [&] { taken = box.pasted(clip.toStdString()); });
            return taken;
        }

        static void fire(const Event& event)
        {
            if (event)
                event();
        }

        /// Options of one group exclude each other on screen as they do in the form.
        void joinGroup(const OptionButton& option, QRadioButton& button)
        {
            if (!option.group)
                return;
            const QString name = QString("group of %1").arg(widgetName(option.group->members.front()->name));
            auto* group = lifetime.findChild<QButtonGroup*>(name);
            if (!group)
            {
                group = new QButtonGroup(&lifetime);
                group->setObjectName(name);
            }
            group->addButton(&button);
        }

        void bindMouse(Picture& picture, PictureWidget& widget)
        {
            const auto report = [&](auto signal, std::function<void(Point)> Picture::*event) {
                QObject::connect(&widget, signal, &lifetime, [*this, &picture, event](QPointF place) {
                    if (const auto& handler = picture.*event)
                        enter(program, form.name + "." + picture.name, true, [&] { handler({place.x(), place.y()}); });
                });
            };
            report(&PictureWidget::pressedAt, &Picture::pressed);
            report(&PictureWidget::movedTo, &Picture::moved);
        }
    };

    /// A form's own size, which a window that fills the screen does not take.
    void showSize(const Form& form, QWidget& window)
    {
        constexpr double unitsPerPixel = 15;
        if (form.size != Point{} && !window.isMaximized())
            window.resize(static_cast<int>(form.size.x / unitsPerPixel), static_cast<int>(form.size.y / unitsPerPixel));
    }

    bool isUsedByPeople(const QObject& object)
    {
        return object.inherits("QLineEdit") || object.inherits("QAbstractButton") ||
               object.inherits("QAbstractSlider") || object.inherits("QComboBox") ||
               object.inherits("QAbstractSpinBox") || object.inherits("QTextEdit") ||
               object.inherits("QPlainTextEdit") || object.inherits("QListWidget") || object.inherits("QAction") ||
               object.inherits("QMenu") || object.inherits("TextSurfaceWidget") || object.inherits("PictureWidget") ||
               object.inherits("QLabel");
    }

    /// Widgets that a form file names; what those make for themselves has no name or one that begins with "qt_".
    bool isNamedInFormFile(const QObject& object)
    {
        return !object.objectName().isEmpty() && !object.objectName().startsWith("qt_");
    }
}

QString widgetName(const std::string& controlName)
{
    QString name = text(controlName);
    for (QChar& character : name)
        if (!character.isLetterOrNumber())
            character = '_';
    while (name.endsWith('_'))
        name.chop(1);
    return name;
}

QStringList bindForm(Program& program, Form& form, QWidget& window, QObject& lifetime)
{
    window.setWindowTitle(text(form.title));
    form.titleShown = [&form, &window] { window.setWindowTitle(text(form.title)); };
    form.sizeShown = [&form, &window] { showSize(form, window); };
    form.sizeShown();
    Binding binding{program, form, window, lifetime};
    for (const ControlRef& control : form.controls)
        std::visit([&binding](auto* record) { binding(record); }, control);
    return binding.mismatches;
}

QStringList widgetsWithoutControl(const Form& form, const QWidget& window)
{
    QStringList names;
    for (const ControlRef& control : form.controls)
        names << widgetName(common(control).name);
    QStringList strays;
    for (const QObject* object : window.findChildren<QObject*>())
        if (isUsedByPeople(*object) && isNamedInFormFile(*object) && !names.contains(object->objectName()) &&
            !object->objectName().startsWith("caption_"))
            strays << object->objectName();
    return strays;
}
