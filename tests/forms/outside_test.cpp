#include "forms/outside.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/on_leaving.h"
#include "support/recorded_outside.h"

namespace
{
    using Events = std::vector<std::string>;

    struct Said : testing::Test
    {
        Said() { outside.dialogs = recorded.dialogs(); }

        RecordedOutside recorded;
        Outside outside;
    };

    TEST_F(Said, IsShownOnceAndInOrder)
    {
        outside.said = {{"first"}, {"second", "Its title"}};
        showSaid(outside);
        showSaid(outside);
        EXPECT_EQ(recorded.messages, (Messages{{"first", "Vantelos"}, {"second", "Its title"}}));
        EXPECT_TRUE(outside.said.empty());
    }

    TEST_F(Said, ComesBeforeAQuestion)
    {
        outside.said = {{"said before"}};
        recorded.answers = {true, false};
        EXPECT_TRUE(ask(outside, {"go on?"}));
        outside.said.push_back({"said between"});
        EXPECT_FALSE(ask(outside, {"still?"}));
        EXPECT_EQ(recorded.events,
                  (Events{"message: said before", "question: go on?", "message: said between", "question: still?"}));
    }

    TEST_F(Said, WhatAMessageBoxBringsUpIsKeptForLater)
    {
        outside.dialogs.message = [&](const Message& message) {
            if (message.text == "first")
                outside.said.push_back({"later"});
        };
        outside.said = {{"first"}, {"second"}};
        showSaid(outside);
        EXPECT_EQ(outside.said, (Messages{{"later"}}));
    }

    TEST(OnLeaving, RunsOnceWhenItsScopeEnds)
    {
        int runs = 0;
        {
            const OnLeaving leaving([&] { ++runs; });
            EXPECT_EQ(runs, 0);
        }
        EXPECT_EQ(runs, 1);
    }

    TEST(OnLeaving, RunsWhenAnExceptionLeaves)
    {
        int runs = 0;
        const auto leave = [&] {
            const OnLeaving leaving([&] { ++runs; });
            throw std::runtime_error("leaving");
        };
        EXPECT_THROW(leave(), std::runtime_error);
        EXPECT_EQ(runs, 1);
    }
}
