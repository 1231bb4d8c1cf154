#pragma once

#include <gtest/gtest.h>

#include <string>

#include "workbench/analysis/analysis_error.h"

namespace Rotavue::Workbench {

// The line with which an analysis is refused; empty if it is not. Every such line is one line.
template <typename Analysis>
std::string refusalOf(const Analysis& analysis) {
    try {
        analysis();
    } catch (const AnalysisError& error) {
        const std::string line = error.what();
        EXPECT_EQ(line.find('\n'), std::string::npos);
        return line;
    }
    return {};
}

}  // namespace Rotavue::Workbench
