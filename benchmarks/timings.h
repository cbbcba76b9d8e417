#pragma once

#include <string>

// The rows of the benchmark table. Each *_bench.cpp registers its own.

/// What a row may take, milliseconds; the row is shown beside it.
void setTarget(const std::string& row, double milliseconds);

/// Registers the timing of each elementary function, from which the floors are computed.
void registerElementaryFunctions();

void registerRecalculations();
void registerAnalyses();
void registerCourses();
void registerPlanning();
void registerRoster();
void registerStarts();
void registerTables();
void registerTools();
