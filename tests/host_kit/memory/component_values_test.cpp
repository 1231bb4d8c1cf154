#include "host_kit/memory/component_values.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using List = VectorList;

constexpr std::int32_t Direct = 4;  // found without a search
constexpr std::int32_t Far = 1000;  // found by one

TEST(ComponentValuesTest, ASharedListAnswersWithoutACopy) {
    for (const std::int32_t component : {Direct, Far}) {
        const auto list = std::make_shared<const List>(List({1.5, 2.5}));
        ComponentValues values;
        values.share(component, list);
        EXPECT_EQ(list.use_count(), 2);
        EXPECT_EQ(values.at(1, component), 2.5);
        EXPECT_EQ(values.at(2, component), 0.0);
    }
}

TEST(ComponentValuesTest, ASharedListTakesThePlaceOfAnother) {
    ComponentValues values;
    values[Direct] = {1.0, 2.0};
    values.share(Direct, std::make_shared<const List>(List({3.0})));
    EXPECT_EQ(values.at(0, Direct), 3.0);
    EXPECT_EQ(values.at(1, Direct), 0.0);
}

TEST(ComponentValuesTest, WhoeverChangesASharedListChangesACopy) {
    for (const std::int32_t component : {Direct, Far}) {
        const auto list = std::make_shared<const List>(List({1.5, 2.5}));
        ComponentValues values;
        values.share(component, list);
        values[component].push_back(3.5);
        EXPECT_EQ(values.at(0, component), 1.5);
        EXPECT_EQ(values.at(2, component), 3.5);
        EXPECT_EQ(list->size(), 2U);
        EXPECT_EQ(list->at(1), 2.5);
        EXPECT_EQ(list.use_count(), 1);
    }
}

TEST(ComponentValuesTest, CopiesShareUntilTheyEnd) {
    const auto list = std::make_shared<const List>(List({1.5}));
    {
        ComponentValues values;
        values.share(Direct, list);
        const ComponentValues copy = values;
        values.erase(Direct);
        EXPECT_EQ(values.at(0, Direct), 0.0);
        EXPECT_EQ(copy.at(0, Direct), 1.5);
        EXPECT_EQ(list.use_count(), 2);
    }
    EXPECT_EQ(list.use_count(), 1);
}

}  // namespace
}  // namespace Rotavue::HostKit
