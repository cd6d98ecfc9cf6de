#pragma once

#include <bitset>
#include <string>

// What outlives a level and a run: it lies in the settings, only ever grows, and reaches the disk
// at once. What is missing or unreadable there counts as nothing yet.

constexpr int chapterCount = 15;

/// Bit n - 1 stands for chapter n.
using ChapterBits = std::bitset<chapterCount>;

ChapterBits readProgress(); ///< The chapters that were finished.
void writeProgress(const ChapterBits& finished);
void finishChapter(int number); ///< Chapters count from 1.

ChapterBits readSecrets(); ///< The chapters whose secret was found.
void writeSecrets(const ChapterBits& found);

int readDeaths(); ///< Over all games.
void countDeath();

/// The bare name of the latest saved game; empty if there is none.
std::string latestSave();
void setLatestSave(const std::string& name);
