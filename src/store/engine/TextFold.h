#pragma once

#include <QString>

#include <cstddef>

namespace kartella::engine {

// The comparisons behind the NAMEFOLD collation and the LIKE operator, on UTF-8 text.

// Orders names after folding case and the Lithuanian letters onto their base letters
// (Ą→A, Č→C, Ę/Ė→E, Į→I, Š→S, Ų/Ū→U, Ž→Z); names equal after folding are ordered by
// their bytes, so the order is total and stable. Returns <0, 0 or >0.
int compareNames(const char* a, std::size_t aSize, const char* b, std::size_t bSize);

// LIKE with the wildcards % (any run) and _ (one character), without regard to case for
// every letter, but with regard to accents: 'š%' matches "Šarūnas", not "Saulius".
// escape is a character that makes the next pattern character literal, or 0 for none.
bool likeMatches(const char* pattern, std::size_t patternSize, const char* text, std::size_t textSize,
    char32_t escape = 0);
bool likeMatches(const QString& pattern, const QString& text);

// Case folding of one character, as LIKE compares.
char32_t foldCase(char32_t c);

} // namespace kartella::engine
