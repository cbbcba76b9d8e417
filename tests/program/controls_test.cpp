#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "main_form.h"
#include "support/case_name.h"

namespace
{
    enum class Kind { text, label, option, check, button, scroll, list, menu, surface, picture };   // as in ControlRef

    /// A control as the main form is designed. What its value is depends on its kind: a text box's text; "on" or
    /// "off" for options, check boxes and ticks of menu items; nothing for the rest.
    struct Design
    {
        std::string name;
        Kind kind;
        const char* value = "";
        const char* caption = nullptr;   // nullptr: not part of the design
        bool enabled = true;

        friend std::ostream& operator<<(std::ostream& out, const Design& row) { return out << row.name; }
    };

    constexpr bool disabled = false;

    const std::vector<Design> runnerAndTable{
        {"txtname", Kind::text, "Joe Runner", "Runner's Name:"},
        {"txtage", Kind::text, "", "Age:"},
        {"optmale", Kind::option, "on", "Male"},
        {"optfemale", Kind::option, "off", "Female"},
        {"HScroll1", Kind::scroll, "", "Weekly training volume:"},
        {"txtmi", Kind::text, "20", "miles ="},
        {"txtkm", Kind::text, "32", "kilometers"},
        {"HScroll2", Kind::scroll, "", "Comparison level:"},
        {"Text5", Kind::text, "100"},
        {"agecomp", Kind::check, "off", "Use age-based comparisons"},
        {"wtscrl", Kind::scroll, "", "Weight:"},
        {"txlb", Kind::text, "160", "lb ="},
        {"txkg", Kind::text, "72.7"},
        {"htscrl", Kind::scroll, "", "Height:"},
        {"txin", Kind::text, "70", "in ="},
        {"txcm", Kind::text, "178"},
        {"actmhrtx", Kind::text, "182", "Actual Max HR:"},
        {"resthrtx", Kind::text, "", "Resting HR:"},
        {"emhrtx", Kind::text, "185", "Estimated max HR (beats/min):"},
        {"Option7", Kind::option, "off", "Fit best two"},
        {"Option8", Kind::option, "off", "Use all data"},
        {"Option9", Kind::option, "off", "Metric output"},
        {"Option10", Kind::option, "off", "English output"},
        {"Picture1", Kind::surface},
        {"Command1", Kind::button, "", "Re-Calculate"},
        {"Command2", Kind::button, "", "Graph", disabled},
        {"Command3", Kind::button, "", "Analysis/  Workouts", disabled},
        {"Command4", Kind::button, "", "Special", disabled},
        {"Command5", Kind::button, "", "Help"},
        {"Command6", Kind::button, "", "Close"},
        {"Command7", Kind::button, "", "Clear"},
        {"Command8", Kind::button, "", "Explanation"},
    };

    const std::vector<Design> menus{
        {"file", Kind::menu, "off", "File"},
        {"datafiles", Kind::menu, "off", "Data File Access"},
        {"exit", Kind::menu, "off", "Exit"},
        {"tables", Kind::menu, "off", "Tables and Tools"},
        {"hillpaces", Kind::menu, "off", "Hill Paces"},
        {"tread", Kind::menu, "off", "Treadmill Equivalents"},
        {"power", Kind::menu, "off", "Power and Energy"},
        {"quickcalcsshow", Kind::menu, "off", "Quick Calculations for Above Items"},
        {"performance", Kind::menu, "off", "Performance Tables and Age Effects"},
        {"unevpa", Kind::menu, "off", "Uneven Splits Analysis", disabled},
        {"cpa", Kind::menu, "off", "Course Elevation Profile Analysis", disabled},
        {"hhe", Kind::menu, "off", "Temperature and Humidity Effects", disabled},
        {"graphs", Kind::menu, "off", "Graph options"},
        {"scale", Kind::menu, "off", "Scale"},
        {"logg", Kind::menu, "on", "100 m - 100 km Log"},
        {"lin1", Kind::menu, "off", "100 m - 800 m Linear"},
        {"lin2", Kind::menu, "off", "400 m - 3200 m Linear"},
        {"lin3", Kind::menu, "off", "5 km - Marathon Linear"},
        {"units", Kind::menu, "off", "Units"},
        {"metric", Kind::menu, "on", "Metric"},
        {"english", Kind::menu, "off", "English"},
        {"print", Kind::menu, "off", "Print"},
        {"ppinfo", Kind::menu, "off", "Information on printing"},
        {"pfull", Kind::menu, "off", "Full report", disabled},
        {"tfile", Kind::menu, "off", "Text file of full report", disabled},
        {"proghelp", Kind::menu, "off", "Help"},
        {"refs", Kind::menu, "off", "References"},
        {"about", Kind::menu, "off", "About"},
    };

    const std::vector<Design> raceRow{
        {"Check1", Kind::check, "off"},
        {"Text1", Kind::text},
        {"Text2", Kind::text},
        {"Text3", Kind::text},
        {"Text4", Kind::text},
        {"Option1", Kind::option, "off", "miles"},
        {"Option2", Kind::option, "off", "yards"},
        {"Option3", Kind::option, "off", "kilometers"},
        {"Option4", Kind::option, "off", "meters"},
        {"Option5", Kind::option, "off", "marathon"},
        {"Option6", Kind::option, "off", "half marathon"},
    };

    std::vector<Design> designs()
    {
        std::vector<Design> all = runnerAndTable;
        all.insert(all.end(), menus.begin(), menus.end());
        for (const char* row : {"(0)", "(1)", "(2)", "(3)", "(4)"})
            for (Design design : raceRow)
            {
                design.name += row;
                all.push_back(design);
            }
        return all;
    }

    struct Value
    {
        std::string operator()(const TextBox* box) const { return box->text; }
        std::string operator()(const OptionButton* option) const { return option->chosen ? "on" : "off"; }
        std::string operator()(const CheckBox* box) const { return box->ticked ? "on" : "off"; }
        std::string operator()(const MenuItem* item) const { return item->ticked ? "on" : "off"; }
        template <class Other>
        std::string operator()(const Other*) const
        {
            return {};
        }
    };

    class Designed : public testing::TestWithParam<Design>
    {};

    TEST_P(Designed, IsThereWithItsKindCaptionAndDefault)
    {
        MainForm main;
        const Design& design = GetParam();
        const ControlRef* control = findControl(main.form().form, design.name);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->index(), static_cast<std::size_t>(design.kind));
        EXPECT_EQ(std::visit(Value{}, *control), design.value);
        if (design.caption)
        {
            EXPECT_EQ(common(*control).caption, design.caption);
        }
        EXPECT_EQ(common(*control).enabled, design.enabled);
        EXPECT_TRUE(common(*control).visible);
    }

    INSTANTIATE_TEST_SUITE_P(MainForm, Designed, testing::ValuesIn(designs()), byName);

    struct BarDesign
    {
        const char* name;
        int value, min, max, smallStep, largeStep;
    };

    class DesignedBar : public testing::TestWithParam<BarDesign>
    {};

    TEST_P(DesignedBar, HasItsRangeAndSteps)
    {
        MainForm main;
        const BarDesign& design = GetParam();
        const ControlRef* control = findControl(main.form().form, design.name);
        ASSERT_NE(control, nullptr);
        const ScrollBar& bar = *std::get<ScrollBar*>(*control);
        EXPECT_EQ(bar.value, design.value);
        EXPECT_EQ(bar.min, design.min);
        EXPECT_EQ(bar.max, design.max);
        EXPECT_EQ(bar.smallStep, design.smallStep);
        EXPECT_EQ(bar.largeStep, design.largeStep);
    }

    INSTANTIATE_TEST_SUITE_P(MainForm, DesignedBar,
                             testing::Values(BarDesign{"HScroll1", 20, 0, 150, 1, 10},
                                             BarDesign{"HScroll2", 1000, 0, 1100, 1, 10},
                                             BarDesign{"wtscrl", 160, 30, 300, 1, 10},
                                             BarDesign{"htscrl", 70, 36, 90, 1, 10}),
                             byName);

    struct MenuPlace
    {
        const char* menu;
        std::vector<const char*> items;
    };

    TEST(Menus, HoldTheirItemsInOrder)
    {
        const std::vector<MenuPlace> places{
            {"", {"file", "tables", "graphs", "print"}},
            {"file", {"datafiles", "exit"}},
            {"tables", {"hillpaces", "tread", "power", "quickcalcsshow", "performance", "unevpa", "cpa", "hhe"}},
            {"graphs", {"scale", "units"}},
            {"scale", {"logg", "lin1", "lin2", "lin3"}},
            {"units", {"metric", "english"}},
            {"print", {"ppinfo", "pfull", "tfile"}},
        };
        MainForm main;
        for (const MenuPlace& place : places)
        {
            std::vector<std::string> found;
            for (const ControlRef& control : main.form().form.controls)
                if (MenuItem* const* item = std::get_if<MenuItem*>(&control); item && (**item).menu == place.menu)
                    found.push_back((**item).name);
            found.resize(std::min(found.size(), place.items.size()));   // a menu of help may follow the bar's last
            EXPECT_EQ(found, std::vector<std::string>(place.items.begin(), place.items.end())) << place.menu;
        }
    }

    TEST(MainFormControls, AreListedOnceWithAUniqueName)
    {
        MainForm main;
        std::set<std::string> names;
        std::set<const Control*> records;
        for (const ControlRef& control : main.form().form.controls)
        {
            EXPECT_TRUE(names.insert(common(control).name).second) << common(control).name;
            EXPECT_TRUE(records.insert(&common(control)).second) << common(control).name;
            EXPECT_FALSE(common(control).name.empty());
        }
        // Beside the designed ones there are only the heading of the race grid and the menu of help.
        EXPECT_EQ(names.size(), designs().size() + 2);
    }

    TEST(MainFormControls, RaceGridHasItsHeading)
    {
        MainForm main;
        const auto& controls = main.form().form.controls;
        EXPECT_TRUE(std::any_of(controls.begin(), controls.end(), [](const ControlRef& control) {
            return std::holds_alternative<Label*>(control) && common(control).caption ==
                                                                  "    Use?        Hours     Minutes     Seconds"
                                                                  "      Number            Units";
        }));
    }

    TEST(MainFormControls, EveryEntrySaysWhatItMeans)
    {
        MainForm main;
        for (const char* name : {"txtname", "txtage", "HScroll1", "HScroll2", "wtscrl", "htscrl", "actmhrtx",
                                 "resthrtx", "Text1(0)", "Text4(4)", "agecomp", "Command1"})
        {
            const ControlRef* control = findControl(main.form().form, name);
            ASSERT_NE(control, nullptr) << name;
            EXPECT_FALSE(common(*control).tip.empty()) << name;
        }
    }

    TEST(MainFormControls, OptionsStandInTheirGroups)
    {
        MainForm main;
        const std::vector<std::vector<std::string>> groups{
            {"optmale", "optfemale"},
            {"Option7", "Option8"},
            {"Option9", "Option10"},
            {"Option1(2)", "Option2(2)", "Option3(2)", "Option4(2)", "Option5(2)", "Option6(2)"}};
        const auto isOn = [&](const std::string& name) {
            return std::get<OptionButton*>(*findControl(main.form().form, name))->chosen;
        };
        main.person.click("Option4(1)");
        for (const auto& group : groups)
            for (const std::string& clicked : group)
            {
                main.person.click(clicked);
                for (const std::string& member : group)
                    EXPECT_EQ(isOn(member), member == clicked) << member << " after " << clicked;
            }
        for (const auto& group : groups)
            EXPECT_TRUE(isOn(group.back())) << "another group was touched";
        EXPECT_TRUE(isOn("Option4(1)")) << "another row was touched";
    }

    TEST(MainFormTitle, NamesTheProgramAndItsVersion)
    {
        MainForm main;
        EXPECT_EQ(main.form().form.name, "vantstart");
        EXPECT_NE(main.form().form.title.find("Vantelos"), std::string::npos);
        EXPECT_NE(main.form().form.title.find("9.3"), std::string::npos);
    }

    TEST(MainFormState, StandsAtItsLoadDefaults)
    {
        MainForm main;
        EXPECT_EQ(main.state().runner.runnerName, "Joe Runner");
        EXPECT_EQ(main.state().runner.sex, 'm');
        EXPECT_EQ(main.state().runner.weightKg, 72.7);
        EXPECT_EQ(main.state().runner.heightCm, 178);
        EXPECT_EQ(main.state().runner.bodyDrag, 60);
        EXPECT_EQ(main.state().curve.anaerobicExp, 0.65);
        EXPECT_EQ(main.state().curve.humpCentre, 360);
        EXPECT_EQ(main.state().curve.humpDepth, -0.02);
        EXPECT_EQ(main.state().curve.humpWidth, 1.15);
        EXPECT_EQ(main.state().flags.graphScale, 4);
        EXPECT_EQ(main.state().flags.unitsMode, 'm');
        EXPECT_EQ(main.state().flags.calculatedOnce, 0);
        EXPECT_EQ(main.state().results.levelIndex, 0);
        EXPECT_EQ(main.folder.entryCount(), 0U) << "only the end writes the settings";
    }
}
