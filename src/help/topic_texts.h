#pragma once

#include <string_view>

// The texts of the help topics, as HelpTopic has them. A number of a worked example stands in them as the program shows
// it; tests/help computes each.

[[nodiscard]] std::string_view trainingAnalysisText();
[[nodiscard]] std::string_view performanceLevelsText();
[[nodiscard]] std::string_view savedFilesText();
[[nodiscard]] std::string_view mainEntryFormText();
[[nodiscard]] std::string_view predictedTableText();
[[nodiscard]] std::string_view specialInformationText();
[[nodiscard]] std::string_view programOverviewText();
[[nodiscard]] std::string_view performanceTablesText();
[[nodiscard]] std::string_view workoutPlannerText();
[[nodiscard]] std::string_view splitsAnalysisText();
[[nodiscard]] std::string_view courseProfileText();
[[nodiscard]] std::string_view heatAndHumidityText();
