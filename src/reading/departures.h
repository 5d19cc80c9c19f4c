#pragma once

#include <array>

// Every place where the tolerant reading departs from the records' own Read,
// and every way a file from other hands departs from the writer's own lines
// that it takes, in one list. The records' Read stays as the format's readers
// know it; the tolerant reading reads each record in the writer's own layout
// instead, and notes which of these departures a document needed.
namespace ItUnitechnik {

enum class Departure {
    // A number in a right-aligned field keeps its minus sign behind the fill
    // zeros ("00-42"); the records' Read stops at the sign and loses step.
    signBehindZeros,
    // From 503 to 599 the order's line 3 ends with its two-character text; the
    // records' Read looks for the old two and forty characters there.
    orderLineFrom503,
    // The order number is read as its field stands; the records' Read trims
    // it, and a number whose only character stands first comes back empty.
    orderNumberUntrimmed,
    // From 600 the order's forty-character text is read from its own line;
    // the records' Read takes the rest of the date's line and loses it.
    orderTextOwnLine,
    // An order without elements: its "END" line is taken whole; the records'
    // Read compares the rest of that line with "END HEADER__".
    orderWithoutElements,
    // A mounted part with outline pieces: the records' Read skips the line
    // behind the part's last piece, which is the "END" of the list.
    partWithPieces,
    // A reinforcement block without irons of its own: the records' Read drops
    // its "END REFORCEM" line and compares the line after it.
    blockWithoutIrons,
    // From 600 the element's loose bars and girders stand before its block,
    // and its irons behind it; the records' Read looks for the block first
    // and goes from it straight to "END SLABDATE".
    reinforcementInWriterOrder,
    // From 600 the lot's last text is read behind its blank; the records'
    // Read takes the blank as the text's first character.
    lotTextBehindBlank,
    // A welding list's flag and count stand side by side; the records' Read
    // takes all their digits for the flag.
    weldingFlagBesideCount,
    // An arc's flags are written in decimal; the records' Read takes them as
    // hexadecimal.
    arcFlagsDecimal,
    // A code or text is read as the characters of its field; the records'
    // Read takes a code as a token (a blank inside it, or a blank code, puts
    // it out of step) and some texts as the rest of a line (a line feed
    // inside breaks them).
    textsByPlace,
    // Lines that lost their trailing blanks, as some editors and transfers
    // leave them: a text, a character or a blank that the line end cuts short
    // reads as the blanks it lost. A number is never cut so, its fill being
    // zeros, and must still stand whole. Taken only when the file does not
    // read as it stands, since a line feed inside a text ends a line too. The
    // records' Read takes a cut text as the characters left, and fails on a
    // text line left empty.
    trailingBlanksLost,
    // The last line without its CR LF: the end of the file ends it. The
    // writer ends every line.
    noFinalLineEnd,
    // Lines ended by a bare line feed, without the carriage return the writer
    // puts in front of it: each is taken as the end of its line.
    bareLineFeeds,
};

struct DepartureInfo {
    Departure departure;
    const char* name;
};

inline constexpr std::array<DepartureInfo, 15> kDepartures{{
    {Departure::signBehindZeros, "sign-behind-zeros"},
    {Departure::orderLineFrom503, "order-line-from-503"},
    {Departure::orderNumberUntrimmed, "order-number-untrimmed"},
    {Departure::orderTextOwnLine, "order-text-own-line"},
    {Departure::orderWithoutElements, "order-without-elements"},
    {Departure::partWithPieces, "part-with-pieces"},
    {Departure::blockWithoutIrons, "block-without-irons"},
    {Departure::reinforcementInWriterOrder, "reinforcement-in-writer-order"},
    {Departure::lotTextBehindBlank, "lot-text-behind-blank"},
    {Departure::weldingFlagBesideCount, "welding-flag-beside-count"},
    {Departure::arcFlagsDecimal, "arc-flags-decimal"},
    {Departure::textsByPlace, "texts-by-place"},
    {Departure::trailingBlanksLost, "trailing-blanks-lost"},
    {Departure::noFinalLineEnd, "no-final-line-end"},
    {Departure::bareLineFeeds, "bare-line-feeds"},
}};

const char* DepartureName(Departure departure);

} // namespace ItUnitechnik
