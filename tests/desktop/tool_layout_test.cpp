// What holds for the window of every tool form: it has a widget for each control and a control for each widget, fits a
// small screen, cuts nothing off, can be worked from the keyboard, and says what each of its fields means.

#include <map>
#include <set>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/binder.h"
#include "open_window.h"

namespace
{
    /// The names of all tool forms.
    std::vector<std::string> toolForms()
    {
        const Program program({}, {}, "/nonexistent");
        std::vector<std::string> names;
        for (const FormPlace& place : program.forms)
            names.emplace_back(place.name);
        return names;
    }

    char mnemonicOf(const QString& text)
    {
        const qsizetype at = QString(text).replace("&&", "  ").indexOf('&');
        return at < 0 ? '\0' : text[at + 1].toLower().toLatin1();
    }

    /// A tool form's window over the sample runner's program.
    struct ToolForm : testing::TestWithParam<std::string>
    {
        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};
        FormWindow* window = nullptr;
        Form* form = nullptr;

        void SetUp() override
        {
            enter(open.program, "vantstart", false, [&] { openForm(open.program, GetParam()); });
            window = open.windows.windowOf(GetParam());
            form = findForm(open.program, GetParam());
            ASSERT_TRUE(window);
            ASSERT_TRUE(form);
            ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        }
        [[nodiscard]] std::vector<const QWidget*> shownOnes() const
        {
            std::vector<const QWidget*> widgets;
            for (const QWidget* widget : window->findChildren<QWidget*>())
                if (widget->isVisible() && !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
                    widgets.push_back(widget);
            return widgets;
        }
    };

    TEST_P(ToolForm, HasAWidgetForEachControlAndAControlForEachWidget)
    {
        EXPECT_EQ(open.windows.mismatches.join(", "), "");
        EXPECT_EQ(widgetsWithoutControl(*form, *window).join(", "), "");
        EXPECT_EQ(window->windowTitle().toStdString(), form->title);
    }

    TEST_P(ToolForm, FitsASmallScreen)
    {
        EXPECT_LE(window->minimumSizeHint().width(), 1280);
        EXPECT_LE(window->minimumSizeHint().height(), 720);
        EXPECT_LE(window->width(), 1280);
        EXPECT_LE(window->height(), 720);
    }

    TEST_P(ToolForm, CutsOffNoCaption)
    {
        for (const QWidget* widget : shownOnes())
        {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            if (!label && !qobject_cast<const QAbstractButton*>(widget))
                continue;
            if (label && label->wordWrap())
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->objectName().toStdString();
            else if (const auto* const button = qobject_cast<const QPushButton*>(widget))
                EXPECT_GE(button->width(), 8 + button->fontMetrics().horizontalAdvance(button->text().remove('&')))
                    << button->objectName().toStdString();
            else
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), qobject_cast<const QLabel*>(widget) ? 0 : widget->sizeHint().height())
                << widget->objectName().toStdString();
        }
        for (const QGroupBox* box : window->findChildren<QGroupBox*>())
            EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->title())) << box->title().toStdString();
    }

    TEST_P(ToolForm, KeepsThingsApart)
    {
        std::vector<const QWidget*> leaves;
        for (const QWidget* widget : shownOnes())
            if (widget->findChildren<QWidget*>(QRegularExpression("^(?!qt_).+")).isEmpty() &&
                !widget->objectName().endsWith("statusbar") && widget->objectName() != "centralwidget" &&
                !widget->parent()->inherits("QAbstractScrollArea") && !widget->inherits("QGroupBox"))
                leaves.push_back(widget);
        const auto placeOf = [this](const QWidget& widget) {
            return QRect(widget.mapTo(window, QPoint()), widget.size());
        };
        for (std::size_t i = 0; i < leaves.size(); ++i)
        {
            EXPECT_TRUE(window->rect().contains(placeOf(*leaves[i]))) << leaves[i]->objectName().toStdString();
            for (std::size_t k = i + 1; k < leaves.size(); ++k)
                if (leaves[i]->parent() == leaves[k]->parent())
                {
                    EXPECT_FALSE(placeOf(*leaves[i]).intersects(placeOf(*leaves[k])))
                        << leaves[i]->objectName().toStdString() << " and " << leaves[k]->objectName().toStdString();
                }
        }
    }

    TEST_P(ToolForm, HasMnemonicsOfItsOwnOnItsButtons)
    {
        std::map<char, std::vector<std::string>> owners;
        const auto add = [&owners](const QString& text, const QString& name) {
            if (const char letter = mnemonicOf(text))
                owners[letter].push_back(name.toStdString());
        };
        for (const QLabel* label : window->findChildren<QLabel*>())
            if (label->buddy())
                add(label->text(), label->objectName());
        for (const QGroupBox* box : window->findChildren<QGroupBox*>())
            add(box->title(), box->objectName());
        for (const QAbstractButton* button : window->findChildren<QAbstractButton*>())
            if (!button->objectName().startsWith("qt_"))
                add(button->text(), button->objectName());
        for (const auto& [letter, names] : owners)
            EXPECT_EQ(names.size(), 1U) << "Alt+" << letter << ": " << testing::PrintToString(names);
        for (const QPushButton* button : window->findChildren<QPushButton*>())
            // those of a grid's rows, and those named after a distance, are too many
            if (!button->objectName().contains('_') && !button->text().front().isDigit())
            {
                EXPECT_NE(mnemonicOf(button->text()), '\0') << button->objectName().toStdString();
            }
    }

    TEST_P(ToolForm, SaysWhatEachFieldMeans)
    {
        for (const ControlRef& control : form->controls)
        {
            if (std::holds_alternative<MenuItem*>(control) || std::holds_alternative<Label*>(control))
                continue;
            const auto* const widget = window->findChild<QWidget*>(widgetName(common(control).name));
            ASSERT_TRUE(widget) << common(control).name;
            EXPECT_FALSE(widget->toolTip().isEmpty()) << common(control).name;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << common(control).name;
        }
    }

    // Every field that can be used is reached, none twice, and the last leads back to the first.
    TEST_P(ToolForm, IsVisitedByTheTabKey)
    {
        std::set<std::string> expected;
        for (const ControlRef& control : form->controls)
        {
            const auto* const widget = window->findChild<QWidget*>(widgetName(common(control).name));
            if (widget && widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
                expected.insert(widget->objectName().toStdString());
        }
        if (expected.empty())
            return;   // there is nothing to do in it
        ASSERT_TRUE(window->focusWidget()) << "nothing has the focus at the opening";
        std::vector<std::string> visited;
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            visited.push_back(window->focusWidget()->objectName().toStdString());
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(std::set<std::string>(visited.begin(), visited.end()), expected);
        EXPECT_EQ(window->focusWidget()->objectName().toStdString(), visited.front());
    }

    TEST_P(ToolForm, ClosesWithEscapeAndOpensAgain)
    {
        QWidget* const inFocus = window->focusWidget();
        QTest::keyClick(inFocus ? inFocus : window, Qt::Key_Escape);
        EXPECT_EQ(findForm(open.program, GetParam()), nullptr);
        EXPECT_EQ(open.windows.windowOf(GetParam()), nullptr);
        enter(open.program, "vantstart", false, [&] { openForm(open.program, GetParam()); });
        EXPECT_TRUE(open.windows.windowOf(GetParam())->isVisible());
    }

    INSTANTIATE_TEST_SUITE_P(All, ToolForm, testing::ValuesIn(toolForms()), [](const auto& row) { return row.param; });
}
