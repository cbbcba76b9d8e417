#include "forms/controls.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace
{
    using Log = std::vector<std::string>;

    Event noting(Log& log, const std::string& word)
    {
        return [&log, word] { log.push_back(word); };
    }

    TEST(TextBox, FiresOnlyWhenTheTextDiffers)
    {
        Log log;
        TextBox box{{.name = "box"}, "a", noting(log, "changed")};
        box.shown = noting(log, "shown");
        setText(box, "a");
        EXPECT_EQ(log, Log{});
        setText(box, "b");
        EXPECT_EQ(log, (Log{"shown", "changed"}));
        EXPECT_EQ(box.text, "b");
    }

    TEST(TextBox, FiresBeforeTheWriteReturnsWithTheNewTextInPlace)
    {
        TextBox box;
        std::string seen;
        box.changed = [&] { seen = box.text; };
        setText(box, "new");
        EXPECT_EQ(seen, "new");
    }

    TEST(TextBox, IsWrittenWithoutAnEvent)
    {
        TextBox box;
        setText(box, "x");
        EXPECT_EQ(box.text, "x");
    }

    TEST(TextBox, TakesAnything)
    {
        TextBox box;
        const std::string odd("\0\xff\n\" \xc3\xa4", 8);
        setText(box, odd);
        EXPECT_EQ(box.text, odd);
    }

    TEST(NestedEvents, RunToTheirEndBeforeTheOuterOneGoesOn)
    {
        Log log;
        TextBox inner;
        inner.changed = noting(log, "inner");
        TextBox outer;
        outer.changed = [&] {
            log.emplace_back("outer begins");
            setText(inner, outer.text + "!");
            log.push_back("outer goes on with " + inner.text);
        };
        setText(outer, "a");
        EXPECT_EQ(log, (Log{"outer begins", "inner", "outer goes on with a!"}));
    }

    TEST(NestedEvents, OuterGoesOnWithWhatTheInnerLeft)
    {
        TextBox box;
        ScrollBar bar{{.name = "bar"}, 5, 0, 10};
        bar.changed = [&] { setText(box, std::to_string(bar.value)); };
        box.changed = [&] { setValue(bar, 10); };
        setValue(bar, 7);
        EXPECT_EQ(bar.value, 10);
        EXPECT_EQ(box.text, "10");
    }

    TEST(NestedEvents, AFaultLeavesTheValueThatWasWritten)
    {
        TextBox box;
        box.changed = [] { throw 1; };
        EXPECT_THROW(setText(box, "kept"), int);
        EXPECT_EQ(box.text, "kept");
    }

    struct Options
    {
        Options()
        {
            for (OptionButton* option : {&a, &b, &c})
            {
                option->group = &group;
                option->clicked = noting(log, option->name);
                option->shown = noting(log, option->name + " shown");
                group.members.push_back(option);
            }
        }
        Options(const Options&) = delete;
        Options& operator=(const Options&) = delete;

        Log log;
        OptionButton a{{.name = "a"}}, b{{.name = "b"}}, c{{.name = "c"}};
        OptionGroup group;
    };

    TEST(OptionButton, ClearsItsGroupBeforeItsClick)
    {
        Options options;
        setChosen(options.a, true);
        options.log.clear();
        options.b.clicked = [&] { options.log.emplace_back(options.a.chosen ? "b too early" : "b"); };
        setChosen(options.b, true);
        EXPECT_FALSE(options.a.chosen);
        EXPECT_TRUE(options.b.chosen);
        EXPECT_FALSE(options.c.chosen);
        EXPECT_EQ(options.log, (Log{"b shown", "a shown", "b"}));
    }

    TEST(OptionButton, FiresNothingWhenItIsOnAlready)
    {
        Options options;
        setChosen(options.a, true);
        options.log.clear();
        setChosen(options.a, true);
        EXPECT_EQ(options.log, Log{});
    }

    TEST(OptionButton, SwitchingOffFiresNothingAndLeavesNoneOn)
    {
        Options options;
        setChosen(options.a, true);
        options.log.clear();
        setChosen(options.a, false);
        EXPECT_EQ(options.log, Log{"a shown"});
        for (const OptionButton* option : options.group.members)
            EXPECT_FALSE(option->chosen);
    }

    TEST(OptionButton, WithoutAGroupStandsAlone)
    {
        OptionButton option;
        setChosen(option, true);
        EXPECT_TRUE(option.chosen);
    }

    RC_GTEST_PROP(OptionButton, AtMostOneIsOnWhateverIsChosen, (const std::vector<std::pair<int, bool>>& steps))
    {
        Options options;
        for (const auto& [which, chosen] : steps)
        {
            OptionButton& option = *options.group.members[static_cast<std::size_t>(which % 3 + 3) % 3];
            setChosen(option, chosen);
            RC_ASSERT(option.chosen == chosen);
            RC_ASSERT(options.a.chosen + options.b.chosen + options.c.chosen <= 1);
        }
    }

    TEST(CheckBox, FiresWhenItIsTickedAndWhenItIsCleared)
    {
        Log log;
        CheckBox box{{.name = "box"}, false, noting(log, "clicked")};
        box.shown = noting(log, "shown");
        setTicked(box, false);
        EXPECT_EQ(log, Log{});
        setTicked(box, true);
        setTicked(box, true);
        setTicked(box, false);
        EXPECT_EQ(log, (Log{"shown", "clicked", "shown", "clicked"}));
    }

    struct BarCase
    {
        const char* name;
        long long written;
        int value;
        int events;
    };

    class Bar : public testing::TestWithParam<BarCase>
    {};

    TEST_P(Bar, HoldsItsRange)
    {
        int changes = 0;
        ScrollBar bar{{.name = "bar"}, 20, -5, 150, 1, 10, [&] { ++changes; }};
        setValue(bar, GetParam().written);
        EXPECT_EQ(bar.value, GetParam().value);
        EXPECT_EQ(changes, GetParam().events);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, Bar,
                             testing::Values(BarCase{"same", 20, 20, 0}, BarCase{"first", -5, -5, 1},
                                             BarCase{"below", -6, -5, 1}, BarCase{"last", 150, 150, 1},
                                             BarCase{"above", 151, 150, 1}, BarCase{"far_above", 1LL << 40, 150, 1},
                                             BarCase{"far_below", -(1LL << 40), -5, 1}),
                             [](const auto& row) { return row.param.name; });

    TEST(ScrollBar, OutOfRangeAtItsEndFiresNothing)
    {
        Log log;
        ScrollBar bar{{.name = "bar"}, 150, 0, 150, 1, 10, noting(log, "changed")};
        bar.shown = noting(log, "shown");
        setValue(bar, 151);
        drag(bar, 1000);
        EXPECT_EQ(log, Log{});
    }

    TEST(ScrollBar, DragFiresItsScrollEventInsteadOfItsChange)
    {
        Log log;
        ScrollBar bar{{.name = "bar"}, 0, 0, 100, 1, 10, noting(log, "changed"), noting(log, "scrolled")};
        bar.shown = noting(log, "shown");
        drag(bar, 5);
        drag(bar, 5);
        EXPECT_EQ(log, (Log{"shown", "scrolled"}));
        EXPECT_EQ(bar.value, 5);
        setValue(bar, 6);
        EXPECT_EQ(log, (Log{"shown", "scrolled", "shown", "changed"}));
    }

    TEST(ScrollBar, DragActsAsChangeWhereNothingElseIsSaid)
    {
        Log log;
        ScrollBar bar{{.name = "bar"}, 0, 0, 100, 1, 10, noting(log, "changed")};
        drag(bar, 200);
        EXPECT_EQ(bar.value, 100);
        EXPECT_EQ(log, Log{"changed"});
    }

    struct ListCase
    {
        const char* name;
        int index;
        int selected;
        int clicks;
    };

    class List : public testing::TestWithParam<ListCase>
    {};

    TEST_P(List, SelectsAnItemOrNone)
    {
        int clicks = 0;
        int shows = 0;
        ListBox list{{.name = "list"}, {"one", "two", "three"}, 0, [&] { ++clicks; }};
        list.shown = [&] { ++shows; };
        select(list, GetParam().index);
        EXPECT_EQ(list.selected, GetParam().selected);
        EXPECT_EQ(clicks, GetParam().clicks);
        EXPECT_EQ(shows, 1);
    }

    INSTANTIATE_TEST_SUITE_P(ByHand, List,
                             testing::Values(ListCase{"the_same_once_more", 0, 0, 1}, ListCase{"last", 2, 2, 1},
                                             ListCase{"behind_the_last", 3, 2, 1}, ListCase{"none", -1, -1, 0},
                                             ListCase{"below_none", -7, -1, 0}),
                             [](const auto& row) { return row.param.name; });

    TEST(ListBox, AnEmptyListHasNothingToSelect)
    {
        Log log;
        ListBox list{{.name = "list"}, {}, -1, noting(log, "clicked")};
        select(list, 0);
        EXPECT_EQ(list.selected, -1);
        EXPECT_EQ(log, Log{});
    }

    TEST(Shown, IsCalledOnceForEveryChangeOfAnyKind)
    {
        Log log;
        Label label;
        MenuItem item;
        for (Control* control : {static_cast<Control*>(&label), static_cast<Control*>(&item)})
            control->shown = noting(log, "shown");
        const auto shownBy = [&log](auto change) {
            log.clear();
            change();
            change();
            return log.size();
        };
        EXPECT_EQ(shownBy([&] { setCaption(label, "caption"); }), 1U);
        EXPECT_EQ(shownBy([&] { setColour(label, {1, 2, 3}); }), 1U);
        EXPECT_EQ(shownBy([&] { setEnabled(label, false); }), 1U);
        EXPECT_EQ(shownBy([&] { setVisible(label, false); }), 1U);
        EXPECT_EQ(shownBy([&] { setTicked(item, true); }), 1U);
        EXPECT_EQ(shownBy([&] { notifyShown(item); }), 2U);
        EXPECT_EQ(label.caption, "caption");
        EXPECT_EQ(label.colour, (Colour{1, 2, 3}));
        EXPECT_FALSE(label.enabled);
        EXPECT_FALSE(label.visible);
        EXPECT_TRUE(item.ticked);
    }

    TEST(MenuItem, ATickFiresNoClick)
    {
        Log log;
        MenuItem item{{.name = "item"}, "menu", false, noting(log, "clicked")};
        setTicked(item, true);
        setTicked(item, false);
        EXPECT_EQ(log, Log{});
    }

    TEST(Form, TellsANewTitleOnce)
    {
        Log log;
        Form form{"name", "old", {}, noting(log, "title")};
        setTitle(form, "old");
        setTitle(form, "new");
        setTitle(form, "new");
        EXPECT_EQ(log, Log{"title"});
        EXPECT_EQ(form.title, "new");
    }

    TEST(Form, TellsANewSizeOnce)
    {
        Log log;
        Form form{"name", "title"};
        form.sizeShown = noting(log, "size");
        setSize(form, {});
        setSize(form, {9300, 8750});
        setSize(form, {9300, 8750});
        EXPECT_EQ(log, Log{"size"});
        EXPECT_EQ(form.size, (Point{9300, 8750}));
    }

    TEST(Form, FindsAControlByItsWholeName)
    {
        TextBox box{{.name = "Text1(0)"}};
        Button button{{.name = "Command1"}};
        const Form form{"name", "title", {&box, &button}};
        ASSERT_NE(findControl(form, "Text1(0)"), nullptr);
        EXPECT_EQ(&common(*findControl(form, "Text1(0)")), &box);
        EXPECT_EQ(&common(*findControl(form, "Command1")), &button);
        for (const char* name : {"Text1", "text1(0)", "Command", "Command10", ""})
            EXPECT_EQ(findControl(form, name), nullptr) << name;
    }

    TEST(Form, CountsControlArraysFromZero)
    {
        EXPECT_EQ(arrayName("Text1", 0), "Text1(0)");
        EXPECT_EQ(arrayName("Option6", 12), "Option6(12)");
    }
}
