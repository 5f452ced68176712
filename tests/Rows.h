#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace brastel {

/// The lines "steps => what is seen then" of a data file.
inline std::vector<std::pair<std::string, std::string>> RowsOf(const char* name) {
    std::vector<std::pair<std::string, std::string>> table;
    std::ifstream file(BRASTEL_TEST_DATA + std::string(name));
    for (std::string line; std::getline(file, line);) {
        const auto arrow = line.find(" => ");
        if (arrow != line.npos) table.emplace_back(line.substr(0, arrow), line.substr(arrow + 4));
    }
    EXPECT_FALSE(table.empty()) << name;
    return table;
}

}  // namespace brastel
