// The main window as a person uses it: every field, button and menu item, with what record, widget and table then show.

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/binder.h"
#include "desktop/text_surface_widget.h"
#include "forms/page_text.h"
#include "open_window.h"

namespace
{
    using testing::ElementsAre;
    using testing::HasSubstr;
    using Events = std::vector<std::string>;

    /// The window over the sample's settings, unless a test says otherwise.
    class Desktop : public testing::Test
    {
    protected:
        std::string shown(const QString& box) { return open.find<QLineEdit>(box).text().toStdString(); }
        std::string table() { return open.find<TextSurfaceWidget>("Picture1").toPlainText().toStdString(); }

        /// The table that a program without a window prints from the form's entries as they stand.
        std::string expectedTable()
        {
            Told told;
            Program other(told.dialogs(), {}, folder.path());
            const VantstartForm& from = open.form();
            VantstartForm& to = *other.vantstart;
            setText(to.txtage, from.txtage.text);
            setChosen(to.optfemale, from.optfemale.chosen);
            setChosen(to.optmale, from.optmale.chosen);
            setValue(to.HScroll1, from.HScroll1.value);
            setValue(to.HScroll2, from.HScroll2.value);
            setTicked(to.agecomp, from.agecomp.ticked);
            for (std::size_t i = 0; i < to.races.size(); ++i)
            {
                const RaceControls& race = from.races.at(i);
                RaceControls& copy = to.races.at(i);
                setTicked(copy.Check1, race.Check1.ticked);
                setText(copy.Text1, race.Text1.text);
                setText(copy.Text2, race.Text2.text);
                setText(copy.Text3, race.Text3.text);
                setText(copy.Text4, race.Text4.text);
                for (std::size_t unit = 0; unit < copy.units.members.size(); ++unit)
                    setChosen(*copy.units.members[unit], race.units.members[unit]->chosen);
            }
            for (OptionButton VantstartForm::*option :
                 {&VantstartForm::Option7, &VantstartForm::Option8, &VantstartForm::Option9, &VantstartForm::Option10})
                setChosen(to.*option, (from.*option).chosen);
            recalculate(to);
            std::string text = textOf(to.Picture1.page);
            if (!text.empty())
                text.pop_back();
            return text;
        }

        ScratchDirectory folder;
        OpenWindow open{(writeSample(folder.path()), folder.path())};
    };

    TEST_F(Desktop, ShowsTheTableOfTheSettingsAtTheStart)
    {
        EXPECT_EQ(open.told.events, Events{});
        EXPECT_THAT(table(), HasSubstr("   Distance       Time      Per mile"));
        EXPECT_THAT(table(), HasSubstr("\n   10000 m "));
        EXPECT_EQ(table(), expectedTable());
        EXPECT_EQ(shown("txtname"), "Joe Runner");
        EXPECT_EQ(shown("txtage"), "40");
        EXPECT_EQ(shown("txtmi"), "30");
        EXPECT_EQ(shown("txtkm"), "48");   // 30 * 1.609 = 48.27
        EXPECT_EQ(shown("Text5"), "100");
        EXPECT_EQ(shown("emhrtx"), "181");   // 1 + 0.6 * (191.5 - 0.007 * 1600) + 0.4 * (208 - 28) = 181.18
        EXPECT_EQ(shown("actmhrtx"), "183");
        EXPECT_EQ(shown("resthrtx"), "55");
        EXPECT_EQ(shown("Text2_0"), "19");
        EXPECT_EQ(shown("Text3_2"), "30");
    }

    // --- texts

    TEST_F(Desktop, TakesEveryTextAsItIsTyped)
    {
        for (const ControlRef& control : open.form().form.controls)
            if (TextBox* const* box = std::get_if<TextBox*>(&control))
            {
                const QString name = widgetName((*box)->name);
                if (open.find<QLineEdit>(name).isReadOnly())
                    continue;
                open.type(name, "12.5x");
                EXPECT_EQ((*box)->text, "12.5x") << (*box)->name;
                open.type(name, "");
                EXPECT_EQ((*box)->text, "") << (*box)->name;
            }
        EXPECT_EQ(open.told.events, Events{});
    }

    TEST_F(Desktop, TakesTheNameForReports)
    {
        open.type("txtname", "Anna <b>Lee</b>");
        EXPECT_EQ(open.program.state.runner.runnerName, "Anna <b>Lee</b>");
    }

    TEST_F(Desktop, EstimatesTheHeartRateWithEachDigitOfTheAge)
    {
        open.type("txtage", "5");
        EXPECT_EQ(shown("emhrtx"), "198");   // 1 + 0.6 * (191.5 - 0.175) + 0.4 * 204.5 = 197.595
        QTest::keyClick(&open.find<QLineEdit>("txtage"), '0');
        EXPECT_EQ(shown("emhrtx"), "175");   // 1 + 0.6 * (191.5 - 17.5) + 0.4 * 173 = 174.6
        EXPECT_EQ(open.program.state.runner.age, 50);
        EXPECT_DOUBLE_EQ(open.program.state.runner.ageDistanceTerm, std::pow(32, 1.5) / 24);
        open.type("txtage", "fifty");
        EXPECT_EQ(shown("emhrtx"), "175");
        EXPECT_EQ(open.program.state.runner.age, 50);
    }

    TEST_F(Desktop, TakesHeartRatesAsLeadingNumbers)
    {
        open.type("actmhrtx", "191 measured");
        EXPECT_EQ(open.program.state.runner.maxHr, 191);
        open.type("resthrtx", "");
        EXPECT_EQ(open.program.state.runner.restHr, 0);
    }

    TEST_F(Desktop, ShowsAreForReadingOnly)
    {
        for (const char* name : {"txtmi", "txtkm", "Text5", "txlb", "txkg", "txin", "txcm", "emhrtx"})
        {
            const std::string before = shown(name);
            EXPECT_TRUE(open.find<QLineEdit>(name).isReadOnly()) << name;
            open.type(name, "99");
            open.paste(name, "98");
            EXPECT_EQ(shown(name), before) << name;
        }
    }

    // --- bars

    TEST_F(Desktop, MovesTheWeeklyVolume)
    {
        auto& bar = open.find<QScrollBar>("HScroll1");
        bar.setFocus();
        QTest::keyClick(&bar, Qt::Key_Right);
        EXPECT_EQ(open.form().HScroll1.value, 31);
        EXPECT_EQ(shown("txtmi"), "31");
        EXPECT_EQ(shown("txtkm"), "50");   // 49.879
        QTest::keyClick(&bar, Qt::Key_End);
        EXPECT_EQ(shown("txtmi"), "150");
        EXPECT_EQ(shown("txtkm"), "241");   // 241.35
        QTest::keyClick(&bar, Qt::Key_Home);
        EXPECT_EQ(shown("txtmi"), "0");
        EXPECT_EQ(shown("txtkm"), "0");
    }

    TEST_F(Desktop, MovesTheComparisonLevel)
    {
        auto& bar = open.find<QScrollBar>("HScroll2");
        bar.setFocus();
        QTest::keyClick(&bar, Qt::Key_Left);
        EXPECT_EQ(open.form().HScroll2.value, 999);
        EXPECT_EQ(shown("Text5"), "99.9");
        QTest::keyClick(&bar, Qt::Key_End);
        EXPECT_EQ(shown("Text5"), "110");
        QTest::keyClick(&bar, Qt::Key_Home);
        EXPECT_EQ(shown("Text5"), "0");
    }

    TEST_F(Desktop, MovesWeightAndHeight)
    {
        auto& weight = open.find<QScrollBar>("wtscrl");
        auto& height = open.find<QScrollBar>("htscrl");
        const Runner& runner = open.program.state.runner;
        weight.setFocus();
        QTest::keyClick(&weight, Qt::Key_End);
        QTest::keyClick(&weight, Qt::Key_Left);
        EXPECT_EQ(shown("txlb"), "299");
        EXPECT_EQ(shown("txkg"), "135.6");   // 299 * 0.45359237 = 135.62
        EXPECT_EQ(runner.weightKg, 135.6);
        QTest::keyClick(&weight, Qt::Key_Home);
        EXPECT_EQ(shown("txlb"), "30");
        EXPECT_EQ(shown("txkg"), " 13.6");
        height.setFocus();
        QTest::keyClick(&height, Qt::Key_End);
        EXPECT_EQ(shown("txin"), "90");
        EXPECT_EQ(shown("txcm"), "  229");   // 228.6
        EXPECT_EQ(runner.heightCm, 229);
        EXPECT_NEAR(runner.bodyDrag, 60 * std::pow((13.6 / 72.7) / (229.0 / 178), 0.25), 1e-9);
        QTest::keyClick(&height, Qt::Key_Home);
        EXPECT_EQ(shown("txin"), "36");
    }

    TEST_F(Desktop, DragsEachBarWithItsShows)
    {
        for (const auto& [name, show] : {std::pair("HScroll1", "txtmi"), {"wtscrl", "txlb"}, {"htscrl", "txin"}})
        {
            auto& bar = open.find<QScrollBar>(name);
            const int before = bar.value();
            pullBar(bar, 4, 3);
            EXPECT_GT(bar.value(), before) << name;
            EXPECT_EQ(shown(show), std::to_string(bar.value())) << name;
            letGo(bar);
            EXPECT_EQ(shown(show), std::to_string(bar.value())) << name;
        }
        auto& level = open.find<QScrollBar>("HScroll2");
        pullBar(level, 4, -3);
        letGo(level);
        EXPECT_LT(level.value(), 1000);
        EXPECT_EQ(QString::fromStdString(shown("Text5")).toDouble(), level.value() / 10.0);
    }

    // --- options and boxes

    TEST_F(Desktop, ChoosesTheSex)
    {
        open.click("optfemale");
        EXPECT_TRUE(open.form().optfemale.chosen);
        EXPECT_FALSE(open.form().optmale.chosen);
        EXPECT_EQ(shown("emhrtx"), "178");
        EXPECT_EQ(open.program.state.runner.sex, 'm');   // until the next calculation
        open.click("Command1");
        EXPECT_EQ(open.program.state.runner.sex, 'f');
        EXPECT_EQ(table(), expectedTable());
        open.click("optmale");
        EXPECT_EQ(shown("emhrtx"), "181");
    }

    TEST_F(Desktop, ChoosesOneUnitARow)
    {
        const char* const words[] = {"miles", "yards", "kilometers", "meters", "marathon", "half marathon"};
        for (int row = 0; row < maxRaces; ++row)
            for (int unit = 1; unit <= 6; ++unit)
            {
                const QString name = QString("Option%1_%2").arg(unit).arg(row);
                open.click(name);
                const RaceControls& race = open.form().races.at(static_cast<std::size_t>(row));
                for (int other = 1; other <= 6; ++other)
                {
                    EXPECT_EQ(race.units.members.at(static_cast<std::size_t>(other - 1))->chosen, other == unit);
                    EXPECT_EQ(open.find<QRadioButton>(QString("Option%1_%2").arg(other).arg(row)).isChecked(),
                              other == unit);
                }
                EXPECT_EQ(open.find<QRadioButton>(name).text(), words[unit - 1]);
            }
        EXPECT_TRUE(open.find<QRadioButton>("Option8").isChecked() && open.find<QRadioButton>("Option9").isChecked());
    }

    TEST_F(Desktop, TicksEveryRace)
    {
        for (int row = 0; row < maxRaces; ++row)
        {
            const bool before = open.form().races.at(static_cast<std::size_t>(row)).Check1.ticked;
            open.click(QString("Check1_%1").arg(row));
            EXPECT_EQ(open.form().races.at(static_cast<std::size_t>(row)).Check1.ticked, !before);
        }
        open.click("agecomp");
        EXPECT_EQ(open.program.state.flags.agecomp, 1);
        open.click("agecomp");
        EXPECT_EQ(open.program.state.flags.agecomp, 0);
    }

    TEST_F(Desktop, ChoosesFitAndTable)
    {
        const std::string metric = table();
        open.click("Option10");
        EXPECT_EQ(table(), metric);   // it stands until Re-Calculate
        open.click("Command1");
        EXPECT_THAT(table(), HasSubstr("marathon"));
        EXPECT_EQ(table(), expectedTable());
        EXPECT_TRUE(open.find<QRadioButton>("Option10").isChecked());
        open.click("Option9");
        open.click("Option7");
        open.click("Command1");
        EXPECT_EQ(table(), expectedTable());
        EXPECT_NE(table(), metric);   // the best two races make another curve
    }

    TEST_F(Desktop, DisablesBestTwoForASingleRace)
    {
        open.click("Option7");
        open.click("Check1_1");
        open.click("Check1_2");
        open.click("Command1");
        EXPECT_FALSE(open.find<QRadioButton>("Option7").isEnabled());
        EXPECT_TRUE(open.find<QRadioButton>("Option8").isChecked());
        open.click("Check1_1");
        open.click("Command1");
        EXPECT_TRUE(open.find<QRadioButton>("Option7").isEnabled());
        EXPECT_TRUE(open.find<QRadioButton>("Option8").isChecked());
    }

    // --- buttons and keys

    TEST_F(Desktop, RecalculatesByTheButton)
    {
        open.type("Text2_2", "28");
        const std::string before = table();
        open.click("Command1");
        EXPECT_NE(table(), before);
        EXPECT_EQ(table(), expectedTable());
    }

    TEST_F(Desktop, RecalculatesAtEnterFromEveryField)
    {
        int minutes = 28;
        for (const char* name : {"txtname", "txtage",    "optmale",  "HScroll1", "wtscrl",   "htscrl",  "HScroll2",
                                 "agecomp", "actmhrtx",  "resthrtx", "Check1_3", "Text1_3",  "Text2_3", "Text3_3",
                                 "Text4_3", "Option4_3", "Option8",  "Option9",  "Picture1", "txtmi"})
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
            {
                const std::string before = table();
                setText(open.form().races[2].Text2, std::to_string(minutes));
                minutes = 57 - minutes;   // 28 and 29 in turn
                auto& widget = open.find<QWidget>(name);
                widget.setFocus();
                QTest::keyClick(&widget, key);
                EXPECT_NE(table(), before) << name;
                EXPECT_EQ(table(), expectedTable()) << name;
            }
        EXPECT_EQ(open.told.events, Events{});
    }

    TEST_F(Desktop, EnterOnAnotherButtonPressesThatButton)
    {
        auto& clear = open.find<QPushButton>("Command7");
        clear.setFocus();
        QTest::keyClick(&clear, Qt::Key_Return);
        EXPECT_EQ(table(), "");
        EXPECT_EQ(shown("Text2_0"), "");
    }

    TEST_F(Desktop, ClearsRacesAndTable)
    {
        const double power = open.program.state.curve.aerobicPower;
        open.click("Option1_4");
        open.click("Command7");
        for (int row = 0; row < maxRaces; ++row)
        {
            EXPECT_FALSE(open.find<QCheckBox>(QString("Check1_%1").arg(row)).isChecked());
            for (int column = 1; column <= 4; ++column)
                EXPECT_EQ(shown(QString("Text%1_%2").arg(column).arg(row)), "");
            for (int unit = 1; unit <= 6; ++unit)
                EXPECT_EQ(open.find<QRadioButton>(QString("Option%1_%2").arg(unit).arg(row)).isChecked(), unit == 4);
        }
        EXPECT_EQ(table(), "");
        EXPECT_EQ(shown("txtage"), "40");
        EXPECT_EQ(open.program.state.curve.aerobicPower, power);
        open.click("Command1");
        EXPECT_THAT(open.told.events, testing::Each("message: No rows checked!"));
        EXPECT_EQ(open.told.events.size(), 2U);   // Re-Calculate calculates twice
    }

    TEST_F(Desktop, PressesButtonsByTheirMnemonics)
    {
        open.type("Text2_2", "28");
        const std::string before = table();
        const auto letterOf = [&](const char* button) {
            const QString text = open.find<QPushButton>(button).text();
            return text[text.indexOf('&') + 1].toLower().toLatin1();
        };
        QTest::keyClick(&open.window, letterOf("Command1"), Qt::AltModifier);   // the button is seen to go down first
        EXPECT_TRUE(QTest::qWaitFor([&] { return table() != before; }, 2000));
        QTest::keyClick(&open.window, letterOf("Command7"), Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return table().empty(); }, 2000));
    }

    // There are more captions than letters: one that is shared goes round those that share it.
    TEST_F(Desktop, GoesToFieldsByTheMnemonicsOfTheirCaptions)
    {
        constexpr int mostPresses = 4;
        for (const char* name :
             {"txtname", "txtage", "HScroll1", "wtscrl", "htscrl", "HScroll2", "actmhrtx", "resthrtx"})
        {
            open.find<QLineEdit>("Text1_4").setFocus();
            const QString text = open.find<QLabel>(QString("caption_%1").arg(name)).text();
            const auto reached = [&] { return open.window.focusWidget() == &open.find<QWidget>(name); };
            for (int presses = 0; presses < mostPresses && !reached(); ++presses)
                QTest::keyClick(&open.window, text[text.indexOf('&') + 1].toLower().toLatin1(), Qt::AltModifier);
            EXPECT_TRUE(reached()) << name;
            while (QWidget* const popup = QApplication::activePopupWidget())
                popup->close();
        }
    }

    // --- menus

    TEST_F(Desktop, ChoosesTheGraphsScale)
    {
        const auto ticked = [&] {
            std::vector<std::string> names;
            for (const char* name : {"logg", "lin1", "lin2", "lin3"})
                if (open.find<QAction>(name).isChecked())
                    names.emplace_back(name);
            return names;
        };
        EXPECT_EQ(open.program.state.flags.graphScale, 4);
        EXPECT_THAT(ticked(), ElementsAre("logg"));
        int scale = 1;
        for (const char* name : {"lin1", "lin2", "lin3", "logg"})
        {
            open.choose({"graphs", "scale", name});
            EXPECT_EQ(open.program.state.flags.graphScale, scale++);
            EXPECT_THAT(ticked(), ElementsAre(name));
        }
        open.choose({"graphs", "scale", "logg"});   // once more: it stays
        EXPECT_THAT(ticked(), ElementsAre("logg"));
    }

    TEST_F(Desktop, ChoosesTheGraphsUnits)
    {
        open.choose({"graphs", "units", "english"});
        EXPECT_EQ(open.program.state.flags.unitsMode, 'e');
        EXPECT_TRUE(open.find<QAction>("english").isChecked());
        EXPECT_FALSE(open.find<QAction>("metric").isChecked());
        open.choose({"graphs", "units", "metric"});
        EXPECT_EQ(open.program.state.flags.unitsMode, 'm');
        EXPECT_TRUE(open.find<QAction>("metric").isChecked());
    }

    TEST_F(Desktop, HasTheMenusInTheirOrder)
    {
        const auto names = [&](const QMenu& menu) {
            std::vector<std::string> list;
            for (const QAction* action : menu.actions())
                if (!action->isSeparator())
                    list.push_back(
                        (action->menu() ? action->menu()->objectName() : action->objectName()).toStdString());
            return list;
        };
        std::vector<std::string> menus;
        for (const QAction* action : open.window.menuBar()->actions())
            menus.push_back(action->menu()->objectName().toStdString());
        EXPECT_THAT(menus, ElementsAre("file", "tables", "graphs", "print", "help"));
        EXPECT_THAT(names(open.find<QMenu>("file")), ElementsAre("datafiles", "exit"));
        EXPECT_THAT(names(open.find<QMenu>("tables")), ElementsAre("hillpaces", "tread", "power", "quickcalcsshow",
                                                                   "performance", "unevpa", "cpa", "hhe"));
        EXPECT_THAT(names(open.find<QMenu>("graphs")), ElementsAre("scale", "units"));
        EXPECT_THAT(names(open.find<QMenu>("scale")), ElementsAre("logg", "lin1", "lin2", "lin3"));
        EXPECT_THAT(names(open.find<QMenu>("units")), ElementsAre("metric", "english"));
        EXPECT_THAT(names(open.find<QMenu>("print")), testing::UnorderedElementsAre("ppinfo", "pfull", "tfile"));
        EXPECT_THAT(names(open.find<QMenu>("help")), ElementsAre("proghelp", "refs", "about"));
    }

    /// What opens a form: whether it can be used before and after a first calculation.
    struct Opener
    {
        const char* name;
        bool atOnce;
    };

    class Openers : public testing::TestWithParam<Opener>
    {};

    TEST_P(Openers, AreUsableOnceTheFormIsThereAndACurveIs)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        const QString name = GetParam().name;
        const ControlRef* control = findControl(open.form().form, GetParam().name);
        ASSERT_TRUE(control);
        const auto opens = [control] {
            Button* const* button = std::get_if<Button*>(control);
            return button ? (*button)->opens : std::get<MenuItem*>(*control)->opens;
        }();
        const bool there = opens.empty() || hasForm(open.program, opens);   // the report is no form
        const auto usable = [&] {
            auto* const widget = open.window.findChild<QWidget*>(name);
            return widget ? widget->isEnabled() : open.find<QAction>(name).isEnabled();
        };
        EXPECT_EQ(common(*control).enabled, GetParam().atOnce);
        EXPECT_EQ(usable(), GetParam().atOnce && there);
        enterSample(open.form());
        open.click("Command1");
        EXPECT_TRUE(common(*control).enabled);
        EXPECT_EQ(usable(), there);
    }

    INSTANTIATE_TEST_SUITE_P(OfEachForm, Openers,
                             testing::Values(Opener{"Command2", false}, Opener{"Command3", false},
                                             Opener{"Command4", false}, Opener{"Command5", true},
                                             Opener{"Command8", true}, Opener{"datafiles", true},
                                             Opener{"hillpaces", true}, Opener{"tread", true}, Opener{"power", true},
                                             Opener{"quickcalcsshow", true}, Opener{"performance", true},
                                             Opener{"unevpa", false}, Opener{"cpa", false}, Opener{"hhe", false},
                                             Opener{"pfull", false}, Opener{"tfile", false}, Opener{"ppinfo", true},
                                             Opener{"proghelp", true}, Opener{"refs", true}, Opener{"about", true}),
                             [](const auto& row) { return row.param.name; });

    TEST_F(Desktop, AsksForHelpAtF1)
    {
        std::vector<std::string> opened;
        open.program.outside.openForm = [&](const std::string& name) { opened.push_back(name); };
        QTest::keyClick(&open.window, Qt::Key_F1);
        EXPECT_EQ(opened, Events{"helpform"});
        EXPECT_EQ(open.program.helpTopic, HelpTopicName::mainEntryForm);
    }

    TEST_F(Desktop, ComesToTheFrontWhenItIsOpenedAgain)
    {
        open.asWidget().showMinimized();
        openForm(open.program, "vantstart");
        EXPECT_TRUE(open.asWidget().isVisible());
        EXPECT_FALSE(open.asWidget().isMinimized());
        EXPECT_TRUE(QTest::qWaitForWindowActive(&open.window));
    }

    // --- the start

    TEST(FirstStart, WithoutSettingsSaysThatNoRowsAreChecked)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path());
        EXPECT_EQ(open.told.events, (Events{"message: No rows checked!", "message: No rows checked!"}));
        const auto shown = [&](const char* name) { return open.find<QLineEdit>(name).text().toStdString(); };
        EXPECT_EQ(shown("txtname"), "Joe Runner");
        EXPECT_EQ(shown("txtage"), "");
        EXPECT_EQ(shown("txtmi"), "20");
        EXPECT_EQ(shown("txtkm"), "32");
        EXPECT_EQ(shown("txlb"), "160");
        EXPECT_EQ(shown("txkg"), "72.7");
        EXPECT_EQ(shown("txcm"), "178");
        EXPECT_EQ(shown("Text5"), "100");
        EXPECT_EQ(shown("actmhrtx"), "180");
        EXPECT_EQ(shown("resthrtx"), "60");
        EXPECT_EQ(shown("emhrtx"), "185");
        for (const char* option : {"optmale", "optfemale", "Option7", "Option9", "Option10", "Option4_0"})
            EXPECT_FALSE(open.find<QRadioButton>(option).isChecked()) << option;
        EXPECT_TRUE(open.find<TextSurfaceWidget>("Picture1").toPlainText().isEmpty());
    }

    class BadSettings : public testing::TestWithParam<std::pair<const char*, std::string>>
    {};

    TEST_P(BadSettings, OpenAWindowThatWorks)
    {
        const ScratchDirectory folder;
        writeFile(folder.settings(), GetParam().second);
        OpenWindow open(folder.path());
        for (const ControlRef& control : open.form().form.controls)
        {
            if (TextBox* const* box = std::get_if<TextBox*>(&control))
            {
                EXPECT_EQ(
                    open.find<QLineEdit>(widgetName((*box)->name)).text().left(100),
                    QString::fromUtf8((*box)->text.data(), static_cast<qsizetype>((*box)->text.size())).left(100));
            }
        }
        enterSample(open.form());
        open.click("Command1");
        EXPECT_FALSE(open.find<TextSurfaceWidget>("Picture1").toPlainText().isEmpty());
    }

    INSTANTIATE_TEST_SUITE_P(
        OfAllSorts, BadSettings,
        testing::Values(std::pair("empty", std::string()), std::pair("one_line", std::string("#TRUE#\n")),
                        std::pair("bytes", std::string("\"\xff\xfe\0\x01\"\n#\n,,,\"", 13)),
                        std::pair("long_lines", "#TRUE#\n#FALSE#\n20\n\"" + std::string(300000, '9') + "\"\n"),
                        std::pair("emoji", std::string("#TRUE#\n#FALSE#\n20\n\"🏃🏽‍♀️\"\n"))),
        [](const auto& row) { return row.param.first; });

    // --- the end

    using Ending = void (*)(OpenWindow&);

    class ProgramEnd : public testing::TestWithParam<std::pair<const char*, Ending>>
    {};

    TEST_P(ProgramEnd, WritesTheSettingsOnceAndClosesTheWindow)
    {
        const ScratchDirectory folder;
        {
            OpenWindow open(folder.path());
            enterSample(open.form());
            open.type("txtage", "44");
            ASSERT_FALSE(std::filesystem::exists(folder.settings()));
            GetParam().second(open);
            EXPECT_FALSE(open.asWidget().isVisible());
            EXPECT_EQ(open.program.vantstart, nullptr);
            EXPECT_THAT(bytesOf(folder.settings()), HasSubstr("\"44\""));
            writeFile(folder.settings(), "written since");
            open.asWidget().close();
            QTest::keyClick(&open.window, Qt::Key_Escape);
            QApplication::processEvents();
        }
        EXPECT_EQ(bytesOf(folder.settings()), "written since");
    }

    INSTANTIATE_TEST_SUITE_P(
        ByEachWay, ProgramEnd,
        testing::Values(std::pair("close_button", Ending([](OpenWindow& open) { open.click("Command6"); })),
                        std::pair("exit_item", Ending([](OpenWindow& open) {
                                      open.choose({"file", "exit"});
                                  })),
                        std::pair("exit_keys", Ending([](OpenWindow& open) {
                                      QTest::keyClick(&open.window, Qt::Key_Q, Qt::ControlModifier);
                                  })),
                        std::pair("title_bar", Ending([](OpenWindow& open) { open.asWidget().close(); })),
                        std::pair("escape", Ending([](OpenWindow& open) {
                                      QTest::keyClick(&open.find<QLineEdit>("Text1_0"), Qt::Key_Escape);
                                  }))),
        [](const auto& row) { return row.param.first; });

    TEST(Settings, ComeBackAsTheyWereLeft)
    {
        const ScratchDirectory folder;
        {
            OpenWindow open(folder.path());
            open.type("txtage", "52.5");
            open.click("optfemale");
            auto& volume = open.find<QScrollBar>("HScroll1");
            volume.setFocus();
            QTest::keyClick(&volume, Qt::Key_End);
            auto& weight = open.find<QScrollBar>("wtscrl");
            weight.setFocus();
            QTest::keyClick(&weight, Qt::Key_Right);
            auto& height = open.find<QScrollBar>("htscrl");
            height.setFocus();
            QTest::keyClick(&height, Qt::Key_Left);
            auto& level = open.find<QScrollBar>("HScroll2");
            level.setFocus();
            QTest::keyClick(&level, Qt::Key_Left);
            open.click("agecomp");
            open.type("actmhrtx", "171");
            open.type("resthrtx", "48");
            for (int row = 0; row < maxRaces; ++row)
            {
                if (row != 3)
                    open.click(QString("Check1_%1").arg(row));
                open.type(QString("Text1_%1").arg(row), QString::number(row));
                open.type(QString("Text2_%1").arg(row), QString::number(20 + row));
                open.type(QString("Text3_%1").arg(row), QString::number(30.5 + row));
                open.type(QString("Text4_%1").arg(row), QString::number(5 * (row + 1)));
                open.click(QString("Option%1_%2").arg(row + 1).arg(row));
            }
            open.click("Option8");
            open.click("Option10");
            open.click("Command6");
        }
        const std::string kept = bytesOf(folder.settings());
        OpenWindow again(folder.path());
        const auto shown = [&](const QString& name) { return again.find<QLineEdit>(name).text().toStdString(); };
        const auto on = [&](const QString& name) { return again.find<QAbstractButton>(name).isChecked(); };
        EXPECT_EQ(shown("txtage"), "52.5");
        EXPECT_TRUE(on("optfemale") && !on("optmale") && on("agecomp") && on("Option8") && on("Option10"));
        EXPECT_FALSE(on("Option7") || on("Option9"));
        EXPECT_EQ(shown("txtmi"), "150");
        EXPECT_EQ(shown("txtkm"), "241");
        EXPECT_EQ(shown("txlb"), "161");
        EXPECT_EQ(shown("txin"), "69");
        EXPECT_EQ(shown("Text5"), "99.9");
        EXPECT_EQ(shown("actmhrtx"), "171");
        EXPECT_EQ(shown("resthrtx"), "48");
        for (int row = 0; row < maxRaces; ++row)
        {
            EXPECT_EQ(on(QString("Check1_%1").arg(row)), row != 3);
            EXPECT_EQ(shown(QString("Text1_%1").arg(row)), std::to_string(row));
            EXPECT_EQ(shown(QString("Text2_%1").arg(row)), std::to_string(20 + row));
            EXPECT_EQ(shown(QString("Text3_%1").arg(row)), std::to_string(30 + row) + ".5");
            EXPECT_EQ(shown(QString("Text4_%1").arg(row)), std::to_string(5 * (row + 1)));
            for (int unit = 1; unit <= 6; ++unit)
                EXPECT_EQ(on(QString("Option%1_%2").arg(unit).arg(row)), unit == row + 1);
        }
        again.asWidget().close();
        EXPECT_EQ(bytesOf(folder.settings()), kept);
    }

    TEST(SettingsThatCanNotBeWritten, AreAskedAboutAndTriedAgain)
    {
        const ScratchDirectory folder;
        const std::filesystem::path lost = folder.path() / "gone";
        OpenWindow open(lost);
        open.forgetEvents();
        open.told.answers = {[] { return true; },
                             [&] {
                                 std::filesystem::create_directory(lost);
                                 return true;
                             }};
        open.asWidget().close();
        ASSERT_EQ(open.told.events.size(), 2U);
        EXPECT_THAT(open.told.events[0], HasSubstr("question: The settings could not be saved"));
        EXPECT_EQ(open.told.events[0], open.told.events[1]);
        EXPECT_FALSE(open.asWidget().isVisible());
        EXPECT_THAT(bytesOf(lost / "vantini.txt"), HasSubstr("#"));
    }

    TEST(SettingsThatCanNotBeWritten, AreLeftAtANo)
    {
        const ScratchDirectory folder;
        OpenWindow open(folder.path() / "gone");
        open.forgetEvents();
        open.click("Command6");
        EXPECT_EQ(open.told.events.size(), 1U);
        EXPECT_FALSE(open.asWidget().isVisible());
        EXPECT_EQ(open.program.vantstart, nullptr);
        EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    }

    // --- faults, in an order that a person can follow

    TEST_F(Desktop, TellsAFaultOfAnEntryWithoutABox)
    {
        open.paste("txtage", "1e400");
        ASSERT_EQ(open.told.events.size(), 1U);
        EXPECT_THAT(open.told.events[0], HasSubstr("status: The calculation stopped: an overflow"));
        EXPECT_EQ(shown("txtage"), "1e400");
        open.type("txtage", "41");
        EXPECT_EQ(open.told.events.size(), 1U);
        EXPECT_EQ(open.program.state.runner.age, 41);
    }

    TEST_F(Desktop, TellsAFaultOfAButtonInABoxAndKeepsWorking)
    {
        auto& level = open.find<QScrollBar>("HScroll2");
        level.setFocus();
        QTest::keyClick(&level, Qt::Key_Home);
        open.click("Command1");
        ASSERT_EQ(open.told.events.size(), 1U);
        EXPECT_EQ(open.told.events[0],
                  "fault: The calculation stopped: division by zero while rating the time over 400 m.");
        QTest::keyClick(&level, Qt::Key_End);
        open.click("Command1");
        EXPECT_EQ(open.told.events.size(), 1U);
        EXPECT_EQ(table(), expectedTable());
    }

    TEST_F(Desktop, TellsMessagesBeforeTheFaultThatFollows)
    {
        open.type("Text2_1", "");   // 10 km in 0 s
        open.type("Text3_1", "");
        open.click("Command1");
        EXPECT_EQ(open.told.events,
                  (Events{"message: Bad time entry in row # 2", "message: Bad time entry in row # 2"}));
        open.forgetEvents();
        open.click("Check1_1");
        open.click("Check1_2");
        open.type("Text3_0", "60");
        open.type("Text2_0", "0");
        open.type("Text4_0", ".5");   // 500 m in a minute: the longest race is short
        auto& level = open.find<QScrollBar>("HScroll2");
        level.setFocus();
        QTest::keyClick(&level, Qt::Key_Home);
        open.click("Command1");
        ASSERT_GE(open.told.events.size(), 2U);
        EXPECT_THAT(open.told.events.front(), HasSubstr("message: LONGEST RACE UNDER 800 METERS"));
        EXPECT_THAT(open.told.events.back(), HasSubstr("fault: The calculation stopped: division by zero"));
    }

    TEST_F(Desktop, KeepsTheLastCurveWhereRowsAreBad)
    {
        const double power = open.program.state.curve.aerobicPower;
        open.type("Text4_0", "");
        open.click("Command1");
        EXPECT_THAT(open.told.events.front(), HasSubstr("message: Bad distance entry in row # 1"));
        EXPECT_EQ(open.program.state.curve.aerobicPower, power);
        EXPECT_EQ(table(), "");
    }

    // --- opening and closing over and over

    TEST(Windows, OpenAndCloseAThousandTimesAndLeaveNothing)
    {
        const ScratchDirectory bare;
        const ScratchDirectory sample;
        writeSample(sample.path());
        const auto before = QApplication::topLevelWidgets().size();
        const auto shown = QGuiApplication::topLevelWindows().size();
        for (int i = 0; i < 1000; ++i)
        {
            const bool full = i % 10 == 0;   // with a table, and painted; that takes longest
            Told told;
            Windows windows;
            FormWindow& window = *windows.windowOf("vantstart");
            Program program(told.dialogs(), {}, (full ? sample : bare).path());
            windows.show(program);
            ASSERT_TRUE(windows.mismatches.isEmpty());
            start(program);
            if (full)
                QApplication::processEvents();
            window.close();
            ASSERT_EQ(program.vantstart, nullptr);
        }
        EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
        EXPECT_EQ(QGuiApplication::topLevelWindows().size(), shown);
    }
}
