#pragma once

#include <QString>

namespace kartella {

// Text that a user typed or a file brought, put into a statement the engine accepts. Every
// value from outside the program goes through one of these; none is pasted in as it stands.

// Text as a string literal: between single quotes, a quote inside doubled ('O''Brien').
// Every back end reads it back as the very same text; no other character is special in it.
QString sqlString(const QString& text);

// What a Like pattern made by sqlLikeText matches.
enum class LikeMatch {
    Whole, // the text itself, letter case aside
    Start, // every text that starts with it
    Anywhere, // every text that holds it
};

// Text as the right-hand side of Like: a quoted pattern whose %, _ and \ stand for
// themselves, followed by ESCAPE '\'. "FullName Like " + sqlLikeText(name) is the
// case-blind equality of Like that no wildcard in the name can widen.
QString sqlLikeText(const QString& text, LikeMatch match = LikeMatch::Whole);

} // namespace kartella
