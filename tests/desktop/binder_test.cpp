// The binder finds a widget for every control and a control for every widget, and tells where it does not.

#include "desktop/binder.h"

#include <map>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "desktop/picture_widget.h"
#include "desktop/text_surface_widget.h"
#include "open_window.h"

namespace
{
    QString withoutMnemonic(QString caption)
    {
        return caption.replace("&&", "\x01").remove('&').replace('\x01', '&');
    }

    TEST(WidgetName, TurnsWhatNoObjectNameHoldsIntoUnderscores)
    {
        EXPECT_EQ(widgetName("txtage"), "txtage");
        EXPECT_EQ(widgetName("Text1(0)"), "Text1_0");
        EXPECT_EQ(widgetName("Text1(12)"), "Text1_12");
    }

    TEST(MainForm, HasAWidgetForEveryControlAndAControlForEveryWidget)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        EXPECT_EQ(open.windows.mismatches.join(", "), "");
        EXPECT_EQ(widgetsWithoutControl(open.form().form, open.window).join(", "), "");
    }

    /// The class that a control's widget must have.
    struct KindName
    {
        const char* operator()(const TextBox*) const { return "QLineEdit"; }
        const char* operator()(const Label*) const { return "QLabel"; }
        const char* operator()(const OptionButton*) const { return "QRadioButton"; }
        const char* operator()(const CheckBox*) const { return "QCheckBox"; }
        const char* operator()(const Button*) const { return "QPushButton"; }
        const char* operator()(const ScrollBar*) const { return "QScrollBar"; }
        const char* operator()(const ListBox*) const { return "QListWidget"; }
        const char* operator()(const MenuItem* item) const { return item->clicked ? "QAction" : "QMenu"; }
        const char* operator()(const TextSurface*) const { return "TextSurfaceWidget"; }
        const char* operator()(const Picture*) const { return "PictureWidget"; }
    };

    // A second way to the same, without the binder: by the names alone.
    TEST(MainForm, HasTheRightKindOfWidgetUnderEachName)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        for (const ControlRef& control : open.form().form.controls)
        {
            const std::string name = common(control).name;
            const auto found = open.window.findChildren<QObject*>(widgetName(name));
            ASSERT_EQ(found.size(), 1) << name;
            EXPECT_TRUE(found.front()->inherits(std::visit(KindName{}, control))) << name;
        }
    }

    /// A window with one widget a control of a small form: the box, an option and a picture.
    struct SmallForm
    {
        TextBox box{{.name = "box"}};
        OptionButton option{{.name = "option(0)"}};
        Picture picture{{.name = "picture"}};
        Form form{"small", "Small", {&box, &option, &picture}};
    };

    struct Scratch
    {
        Told told;
        ScratchDirectory folder;
        Program program{told.dialogs(), {}, folder.path()};
        SmallForm small;
        QWidget window;
        QObject lifetime;

        template <class Widget>
        Widget* add(const char* name)
        {
            auto* const widget = new Widget(&window);
            widget->setObjectName(name);
            return widget;
        }
        QStringList bind() { return bindForm(program, small.form, window, lifetime); }
        QStringList strays() { return widgetsWithoutControl(small.form, window); }
    };

    TEST(Binder, HasNothingToSayWhereAllFits)
    {
        Scratch scratch;
        scratch.add<QLineEdit>("box");
        scratch.add<QRadioButton>("option_0");
        scratch.add<PictureWidget>("picture");
        EXPECT_EQ(scratch.bind().join(", "), "");
        EXPECT_EQ(scratch.strays().join(", "), "");
    }

    TEST(Binder, TellsWhichWidgetIsMissing)
    {
        Scratch scratch;
        scratch.add<QLineEdit>("box");
        scratch.add<PictureWidget>("picture");
        const QStringList mismatches = scratch.bind();
        ASSERT_EQ(mismatches.size(), 1);
        EXPECT_TRUE(mismatches.front().contains("option_0")) << mismatches.front().toStdString();
    }

    TEST(Binder, TellsWhichWidgetIsOfTheWrongKind)
    {
        Scratch scratch;
        scratch.add<QLineEdit>("box");
        scratch.add<QCheckBox>("option_0");
        scratch.add<QLabel>("picture");
        const QStringList mismatches = scratch.bind();
        ASSERT_EQ(mismatches.size(), 2);
        EXPECT_TRUE(mismatches[0].contains("option_0"));
        EXPECT_TRUE(mismatches[0].contains("QRadioButton"));
        EXPECT_TRUE(mismatches[1].contains("picture"));
    }

    /// A widget that a person can use or that shows something, made by a form file and without a control behind it.
    struct Stray
    {
        const char* name;
        QWidget* (*make)(QWidget* parent);
    };

    template <class Widget>
    QWidget* make(QWidget* parent)
    {
        return new Widget(parent);
    }

    class StrayWidget : public testing::TestWithParam<Stray>
    {};

    TEST_P(StrayWidget, IsTold)
    {
        Scratch scratch;
        GetParam().make(&scratch.window)->setObjectName("stray");
        EXPECT_EQ(scratch.strays().join(", "), "stray");
    }

    INSTANTIATE_TEST_SUITE_P(OfEachKind, StrayWidget,
                             testing::Values(Stray{"line_edit", make<QLineEdit>}, Stray{"label", make<QLabel>},
                                             Stray{"radio_button", make<QRadioButton>},
                                             Stray{"check_box", make<QCheckBox>},
                                             Stray{"push_button", make<QPushButton>},
                                             Stray{"scroll_bar", make<QScrollBar>}, Stray{"list", make<QListWidget>},
                                             Stray{"combo_box", make<QComboBox>}, Stray{"spin_box", make<QSpinBox>},
                                             Stray{"slider", make<QSlider>}, Stray{"text_edit", make<QPlainTextEdit>},
                                             Stray{"surface", make<TextSurfaceWidget>},
                                             Stray{"picture", make<PictureWidget>}, Stray{"menu", make<QMenu>}),
                             [](const auto& row) { return row.param.name; });

    TEST(Strays, HoldNeitherTheFrameOfAFormNorTheCaptionsOfControls)
    {
        Scratch scratch;
        scratch.add<QGroupBox>("frame");
        scratch.add<QLabel>("caption_box");
        EXPECT_EQ(scratch.strays().join(", "), "");
    }

    TEST(Strays, HoldActions)
    {
        Scratch scratch;
        scratch.add<QAction>("item");
        EXPECT_EQ(scratch.strays().join(", "), "item");
    }

    // Captions that stand above a column, not beside each of its boxes.
    const std::map<QString, QString>& columnHeadings()
    {
        static const std::map<QString, QString> headings{{"Text1", "caption_race1"},
                                                         {"Text2", "caption_race2"},
                                                         {"Text3", "caption_race3"},
                                                         {"Text4", "caption_race4"}};
        return headings;
    }

    QLabel* captionLabel(QWidget& window, const QString& name)
    {
        const auto heading = columnHeadings().find(name.section('_', 0, 0));
        return window.findChild<QLabel*>(heading == columnHeadings().end() ? "caption_" + name : heading->second);
    }

    /// What a person reads on or beside a widget.
    QString captionShown(QWidget& window, const QString& name)
    {
        QObject* const object = window.findChild<QObject*>(name);
        if (auto* const button = qobject_cast<QAbstractButton*>(object))
            return withoutMnemonic(button->text());
        if (auto* const menu = qobject_cast<QMenu*>(object))
            return withoutMnemonic(menu->title());
        if (auto* const action = qobject_cast<QAction*>(object))
            return withoutMnemonic(action->text());
        auto* const itself = qobject_cast<QLabel*>(object);
        QLabel* const label = itself ? itself : captionLabel(window, name);
        return label ? withoutMnemonic(label->text()) : QString();
    }

    TEST(Captions, AreShownAsTheFormTellsThem)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        for (const ControlRef& control : open.form().form.controls)
        {
            if (!common(control).caption.empty())
            {
                EXPECT_EQ(captionShown(open.window, widgetName(common(control).name)).toStdString(),
                          common(control).caption)
                    << common(control).name;
            }
        }
    }

    TEST(Captions, HeadTheRaceRows)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        const auto text = [&](const char* name) { return open.find<QLabel>(name).text().toStdString(); };
        EXPECT_EQ(text("caption_race0"), "Use?");
        EXPECT_EQ(text("caption_race1"), "Hours");
        EXPECT_EQ(text("caption_race2"), "Minutes");
        EXPECT_EQ(text("caption_race3"), "Seconds");
        EXPECT_EQ(text("caption_race4"), "Number");
        EXPECT_EQ(text("caption_raceUnits"), "Units");
    }

    TEST(Captions, StandOnTheWindowToo)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        EXPECT_EQ(open.asWidget().windowTitle(), "Vantelos 9.3");
    }
}
