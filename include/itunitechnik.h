/*
 * itunitechnik.h - the C interface of the Unitechnik CAD/CAM writer, and its
 * reference: each export is described where it is declared.
 *
 * A host opens an order with startOrder, fills it through the setters and
 * adders, and writes the whole document with endDocument. All state lives in
 * the library between calls; call from one thread at a time.
 *
 * Strings are zero-terminated 16-bit code units: wchar_t on Windows,
 * char16_t (uint_least16_t in C) elsewhere. Blocks handed in are read during
 * the call only. Null pointers are a contract violation.
 *
 * No C++ exception and no signal of the library's own crosses into the host.
 * When a call cannot go on (memory runs out, or a date text that setProjectData
 * cannot read), it stops where it stands, leaves the document as far as it
 * got, and returns the result named at the export "on a failure inside the
 * library". Writing into a pipe whose reader has gone raises no SIGPIPE in the
 * host: on POSIX the library blocks the signal in the calling thread around
 * each of its writes and takes back one that its own write raised, so the
 * host's signal handling and mask are as they were.
 *
 * What holds for every export:
 *
 * - The document. It is a list of orders, each with one slab element. The
 *   current element is the element of the last order. The setters and
 *   adders other than setProjectData, and getFullReinforcementString, work
 *   on it alone, and before the first startOrder do nothing (or return their
 *   "no current element" result). Every list numbers what is added to it
 *   from 1, in call order.
 *
 * - Units. Coordinates and lengths are whole millimetres in 32-bit integers
 *   and pass through as given: nothing is scaled, rounded or checked, except
 *   where an export says so (the placement of startOrder, the metres of
 *   addLayer, the thousandths of a girder in addSet). Below format version
 *   600 a negative coordinate of an outline is written as 0.
 *
 * - Texts are copied whole and cut to their field when the file is written:
 *   "20 characters" at a parameter means its first 20 code units reach the
 *   file, filled with blanks to that width. A character up to U+00FF becomes
 *   its one byte in the file. The first character above U+00FF that reaches
 *   the file ends the file there (nothing from it on is written) while
 *   endDocument still returns 1; getFullReinforcementString keeps it. A line
 *   feed inside a text is written as a line end.
 *
 * - Numbers are never cut. "5 digits" names the least width: a larger value
 *   widens its field and pushes the rest of the line to the right. A negative
 *   value in an unsigned field keeps its minus behind the fill zeros ("00-42"
 *   in 5 digits); "signed" fields write the sign first ("+00042").
 *
 * - Counts and pointers are trusted. An explicit count larger than its array
 *   makes the library read past the array; a count is rounded up to whole
 *   groups where the data comes in groups.
 *
 * - Format versions. The version given to startOrder decides, per order,
 *   which fields stand in the records and how wide: the layout changes at
 *   501, 502, 503 and 600, and the version 5 counts as above 500 in the
 *   element's first two lines. No version is rejected.
 */
#ifndef ITUNITECHNIK_H
#define ITUNITECHNIK_H

#include <stdint.h>

#ifndef __cplusplus
#include <stdbool.h>
#endif

/* ITUNITECHNIK_VERSION_MAJOR, _MINOR, _PATCH and _STRING: the version of the
 * library this header belongs to. */
#include "itunitechnik_version.h"

/* ITUNITECHNIK_API, it_char16, the texts of setProjectData (IT_PROJECT_...)
 * and the blocks ItCutoutBlock, ItBarBlock and ItFreeFormSegment. */
#include "itunitechnik_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Orders and the document. */

/* startOrder: opens an order with its one slab element, which becomes the
 * current element.
 *
 * orderValue        the order's two-digit number in its identifying line,
 *                   taken as 16-bit signed (above 32767 it is negative).
 * elementNumberArg  the element's number: below version 600 its low 16 bits
 *                   as a signed number, 3 digits (70000 gives 4464); from
 *                   600 its decimal text, 15 characters.
 * placement         9 doubles: x, y, z of the element's first, second and
 *                   third point, in millimetres. Each is rounded to whole
 *                   millimetres, halves away from zero; a value outside the
 *                   32-bit range, or NaN, becomes -2147483648. Written with 6
 *                   digits, signed from version 600.
 * version           the format version of this order, such as 502 or 600,
 *                   taken as 16-bit signed (above 32767 it counts as below
 *                   every change of layout). The element and all its lists
 *                   take it; each order keeps its own.
 * elementTextArg    the element's text, 30 characters, right-aligned.
 * elementMeasureArg the element's measure, written with 2 places before the
 *                   point and 3 decimals (00.000).
 * clearDocument     non-zero: every earlier order is dropped first. Zero:
 *                   the new order goes behind them; the setters and adders
 *                   then reach the new one only, and endDocument writes all.
 *
 * The order's texts, project, addresses and date stay at their defaults
 * (blanks, a date of zeros) until setProjectData; orders opened after a
 * setProjectData do not get its data. The element's external iron list is
 * written from the start, empty or not.
 *
 * Returns 1; 0 on a failure inside the library, when the order was not added
 * (the earlier orders are dropped all the same if clearDocument asked for
 * it). */
ITUNITECHNIK_API int32_t startOrder(uint16_t orderValue, int32_t elementNumberArg,
                                    const double* placement, uint16_t version,
                                    const it_char16* elementTextArg, double elementMeasureArg,
                                    bool clearDocument);

/* endDocument: writes every order to the file at path, in the order of the
 * startOrder calls, with nothing before, between or behind them; lines end in
 * CR LF. An existing file is cut and written anew. On POSIX the path goes to
 * the file system as UTF-8.
 *
 * For each order of version 600 and up that holds a legacy text, a 40-byte
 * alternate data stream "<path>:order<n>" is written too (n counts every
 * order from 0; on POSIX a file of that name). No export fills that text, so
 * a document built through these calls makes none.
 *
 * Returns 1, also when the file cannot be made (a missing or read-only
 * directory, a path that is a directory) or a write fails part way (a full
 * disk, a pipe whose reader has gone, a FIFO that nobody reads), and also
 * when a character above U+00FF ends the file early: such faults are not
 * reported, and what reached the file before the fault stays as written.
 * Returns 0 when the stream is unhealthy from the start, or on a failure
 * inside the library. The document stays as it is either way, so a second
 * call with another path writes it whole, and the adders keep working on the
 * same element. With no order the file is made empty. */
ITUNITECHNIK_API int32_t endDocument(const it_char16* path);

/* Project and element setters. */

/* setProjectData: fills the texts, project, addresses and date of every
 * order in the document, all with the same data; each call overwrites them.
 * With no order it does nothing.
 *
 * texts  IT_PROJECT_TEXT_COUNT pointers to texts, laid out and cut as the
 *        IT_PROJECT_ values above tell; an empty order number becomes
 *        "12345678", every other empty text stays empty.
 *
 * The date text is read by position, not by separator: characters 0 and 1
 * are the day, 3 and 4 the month, 6 to 9 the year (as many as there are);
 * characters 2 and 5 are not looked at, so 31.12.2024 and 31/12/2024 are
 * the same date. Each part is read as a decimal number: blanks and a sign
 * may stand in front, digits are taken as far as they go, the rest of the
 * part is ignored, and the values are not checked (32.13.2024 passes). So
 * a date without leading zeros goes wrong: 01.2.2024 gives month 2 and year
 * 24. The date is written dd.mm.yyyy, and below version 502 dd.mm.yy (a year
 * above 99 keeps its digits).
 *
 * A date text shorter than six characters, or one whose day, month or year
 * holds no number (1.2.2024: the month ".2"), stops the call at that order:
 * the orders before it are complete, that order has its number and the
 * three texts behind it set and keeps the rest, and the orders behind it
 * are untouched. Nothing is returned and nothing is thrown. */
ITUNITECHNIK_API void setProjectData(const it_char16* const* texts);

/* These four change nothing on a failure inside the library. */

/* setSlabInfoFields: the current element's four information texts, 20
 * characters each, right-aligned, on lines of their own; written from
 * version 600 only. Each call overwrites them; before the first startOrder
 * it does nothing. */
ITUNITECHNIK_API void setSlabInfoFields(const it_char16* slabInfo1, const it_char16* slabInfo2,
                                        const it_char16* slabInfo3, const it_char16* slabInfo4);

/* setThicknesses: the current element's thickness and second thickness, in
 * millimetres, 4 digits each; the second is written from version 501 (and in
 * version 5). The next addLayer overwrites both with its running total: to
 * write another second thickness, call this after the last addLayer. */
ITUNITECHNIK_API void setThicknesses(int32_t thickness, int32_t secondThickness);

/* setDoubleWallGap: the current element's double-wall gap, in millimetres,
 * 3 digits. */
ITUNITECHNIK_API void setDoubleWallGap(int32_t doubleWallGap);

/* addLayer: adds a concrete layer to the current element, numbered from 1 in
 * call order. The concrete layers are written from version 502 on; below it
 * they are kept but not written.
 *
 * layerKind        the layer's kind, 2 digits, taken as 16-bit signed.
 * thicknessMetres  the layer's thickness in metres, stored as whole
 *                  millimetres (rounded, halves away from zero: 0.0625 gives
 *                  63), 3 digits.
 * firstFactor      stored and written with 1 place before the point and 3
 *                  decimals (0.000).
 * secondFactor     stored and written with 5 places before the point and 1
 *                  decimal (00000.0). The product of the two factors is added
 *                  to the element's layer product sum (00000.0).
 * layerName        8 characters below version 600, 20 from 600.
 *
 * The element's thickness grows by the layer's millimetres, and the second
 * thickness is set to the same total, whatever setThicknesses put there. */
ITUNITECHNIK_API void addLayer(uint16_t layerKind, double thicknessMetres, double firstFactor,
                               double secondFactor, const it_char16* layerName);

/* Outline adders. The functions without a result add nothing on a failure
 * inside the library.
 *
 * An outline is a chain of straight pieces from each point to the next. The
 * library does not close it: a closed outline repeats its first point at the
 * end. Coordinates are millimetres, written with 5 digits, signed from
 * version 600; below 600 a negative coordinate is written as 0. The element's
 * size (its extents, 5 digits each) is the width and height of the box
 * around all its contours, taken anew after each adder but addExtIron;
 * cutouts, mounted parts and reinforcement play no part, and while there is
 * no contour (or none with a piece) the size after an add is 1 by 1. */

/* addContour: adds an outline of the current element ("CONTOUR_"),
 * numbered from 1 in call order.
 *
 * pointCount  the number of points; pointCount - 1 pieces are added. With 1
 *             or less, a contour with no pieces is added and points is not
 *             read.
 * points      2 * pointCount integers: x, y of each point in turn. */
ITUNITECHNIK_API void addContour(int32_t pointCount, const int32_t* points);

/* addCutout: adds an opening of the current element ("CUTOUT__"), numbered
 * from 1 in call order: the block's name and value, then the chain of its
 * block->pointCount points (2 * pointCount integers in points, x, y in turn;
 * with 1 or less, no piece and points is not read). The element's size does
 * not change with it. */
ITUNITECHNIK_API void addCutout(const ItCutoutBlock* block, const int32_t* points);

/* addSet: adds a set of objects placed on the current element.
 *
 * setKind 3: one mounted part ("MOUNPART"), numbered from 1 in call order.
 *   setName     the part's name, 40 characters.
 *   values      values[0], a number of 3 digits; values[1], a number of 3
 *               digits below version 600 and signed with 5 from 600; then
 *               four integers per straight piece, x0, y0, x1, y1, in
 *               millimetres. values[0] and values[1] are read whatever
 *               valueCount says.
 *   valueCount  above 2: ((valueCount - 3) / 4) + 1 pieces, so a count that
 *               is not 2 plus a multiple of 4 is rounded up to whole pieces
 *               and the integers behind it are read too.
 *   The part's width and height (5 digits each) are those of the box around
 *   its pieces' ends, a box that starts at 1000000 for the least x and y and
 *   -1000000 for the greatest: a part with no piece is 2000000 by 2000000,
 *   and one that lies wholly beyond 1000000 mm takes that line in. Its area
 *   is width * height in square metres, the product wrapping in 32 bits
 *   (00.000; 50000 by 50000 gives -1794.967).
 *
 * setKind 5: braced girders in the element's own list ("BRGIRDER"), one per
 *   group of ten integers g0 to g9, numbered from 1 in call order:
 *   g0 type number (5 digits), g1 first size (5 digits), g2, g3 position x,
 *   y and g4 position z (millimetres, signed, 5 digits), g5 rotation (signed,
 *   3 digits), g6 a number of 3 digits, g7 one of 2 digits, g8 a value in
 *   thousandths (written divided by 1000, 00.000), g9 a number of 5 digits.
 *   setName     the designation of every girder of the call, 10 characters.
 *   valueCount  below 1 adds nothing (the result is 1) and values is not
 *               read; otherwise it is rounded up to whole groups of ten and
 *               the integers behind it are read too.
 *   The girders are not mounted and carry no detail lists.
 *
 * Any other kind adds nothing, and setName and values are not read.
 *
 * Returns 1 when done; 0 with no current element or an unknown kind, and 0 on
 * a failure inside the library (girders of kind 5 added before it stay). */
ITUNITECHNIK_API int32_t addSet(int32_t setKind, const it_char16* setName, int32_t valueCount,
                                const int32_t* values);

/* Reinforcement adders. The functions without a result add nothing on a
 * failure inside the library.
 *
 * The element's reinforcement is written behind its outlines. From version
 * 600: the loose bars ("RODSTOCK") and loose girders ("BRGIRDER") when there
 * are any, the mats ("REFORCEM") once a mat was added, and the external
 * irons ("EXTIRON_"). Below 600 the loose bars, loose girders and external
 * irons are written, empty or not, until a mat is added; from then on the
 * "REFORCEM" record stands alone, and the others are kept
 * (getFullReinforcementString shows them) but not written to the file. */

/* addSteelmat: adds a mat to the current element's reinforcement, numbered
 * from 1 in call order; from then on the element writes its "REFORCEM"
 * record, with this mat's "STEELMAT" in it. Bars added by addCFSRodstock go
 * into the mat added last.
 *
 * name             the mat's text, 20 characters, right-aligned.
 * firstDimension,
 * secondDimension  5 digits each.
 * firstFlag,
 * secondFlag       non-zero is written 1, zero 0.
 * matKind          1 digit (its low 16 bits, signed); passed through.
 * position         3 integers: x, y, z in millimetres, signed, 5 digits.
 *
 * Returns the mat's number (16-bit: past 32767 mats it wraps); 0 with no
 * current element, and 0 on a failure inside the library. */
ITUNITECHNIK_API int32_t addSteelmat(const it_char16* name, int32_t firstDimension,
                                     int32_t secondDimension, int32_t firstFlag,
                                     int32_t secondFlag, int32_t matKind, const int32_t* position);

/* addCFSRodstock: adds a bar to the mat added last ("RODSTOCK" inside its
 * "STEELMAT"), numbered from 1 within that mat. There is no way of naming
 * another mat.
 *
 * rodKind           1 digit.
 * designation       3 characters below version 600, 10 from 600.
 * firstSize         5 digits.
 * secondSize        3 digits.
 * thirdSize         5 digits.
 * position          3 integers: x and y in millimetres (signed, 5 digits),
 *                   then the bar's sixth auxiliary number (5 digits), not a z.
 * positionZ         millimetres, signed, 5 digits.
 * rotation          signed, 3 digits.
 * extraDesignation  10 characters, right-aligned.
 * mountFlag         exactly 1 marks the bar mounted; any other value not.
 * auxFirst          3 digits.
 * auxFourth,
 * auxFifth          5 digits each.
 * flagsCode         a decimal code: 100 to 199 give the bar a welding-point
 *                   list; a tens digit of 0 gives no bending, of 1 a spacer
 *                   list and the two coded bending forms, any other a free
 *                   form (110: welding points, spacers, coded forms). The
 *                   lists and forms it asks for are written without entries:
 *                   no export fills them.
 *
 * Returns the bar's number in the last mat; 0 with no current element; -1
 * when no mat takes the bar, and -1 on a failure inside the library. With -1
 * the bar is dropped: nothing of it is kept. */
ITUNITECHNIK_API int32_t addCFSRodstock(int32_t rodKind, const it_char16* designation,
                                        int32_t firstSize, int32_t secondSize, int32_t thirdSize,
                                        const int32_t* position, int32_t positionZ,
                                        int32_t rotation, const it_char16* extraDesignation,
                                        int32_t mountFlag, int32_t auxFirst, int32_t auxFourth,
                                        int32_t auxFifth, int32_t flagsCode);

/* addStraightRodstock: adds a straight loose bar to the current element's own
 * list ("RODSTOCK"), numbered from 1 in call order, from the cells of bar
 * that are not marked free-form (ItBarBlock). */
ITUNITECHNIK_API void addStraightRodstock(const ItBarBlock* bar);

/* addFreeFormRodstock: adds a loose bar to the current element's own list,
 * like addStraightRodstock, from all the cells of bar.
 *
 * bar->bendingCode  the bar's bending kind is written as the character '0'
 *                   plus this code: 0 no bending; 1 the two coded forms
 *                   (written as zeros: nothing fills them); 2 the free form
 *                   of segments. Any other code is written as its character
 *                   and behaves as no bending; from 208 on that character
 *                   lies above U+00FF and ends the file there.
 * segments          with bendingCode 2, bar->segmentCount entries, written
 *                   six to a line in call order (none with a count of 0).
 *                   Not read with any other code.
 */
ITUNITECHNIK_API void addFreeFormRodstock(const ItBarBlock* bar, const ItFreeFormSegment* segments);

/* addExtIron: adds an external iron to the current element's own list
 * ("EXTIRON_"), numbered from 1 in call order. The element's size is not
 * taken anew.
 *
 * ironCode   2 digits.
 * ironCount  5 digits.
 * ironValue  3 places before the point and 3 decimals (000.000).
 * ironText   30 characters, right-aligned.
 *
 * Returns the iron's number; 0 with no current element, and 0 on a failure
 * inside the library. */
ITUNITECHNIK_API int32_t addExtIron(int32_t ironCode, int32_t ironCount, double ironValue,
                                    const it_char16* ironText);

/* The reinforcement summary string: the mounted parts, loose bars, loose
 * girders, mats and external irons of the current element, in the text of
 * their records, each line ended by a line feed alone. The five records
 * "MOUNPART", "RODSTOCK", "BRGIRDER", "REFORCEM" and "EXTIRON_" stand in
 * this order, each also when it is empty and whatever the version, in the
 * layout of the element's version; outlines and openings are not in it.
 * Characters above U+00FF are kept. The document does not change, and each
 * call makes a new block.
 *
 * The result is one of three kinds: a block the caller owns (the text); an
 * empty string of the library's own, when there is no current element; or
 * one of the library's own texts "ERROR MOUNPART", "ERROR RODSTOCK",
 * "ERROR BRGIRDER", "ERROR REFORCEM" and "ERROR EXTIRON_", when that record
 * could not be written, and "ERROR MEMORY" on a failure inside the library.
 * Give every result back with freeFullReinforcementString, which frees a
 * block (CoTaskMemFree on Windows, free elsewhere) and leaves the library's
 * own texts alone; a Windows host may also free a block itself with
 * CoTaskMemFree, but then must not free the other two kinds. The library's
 * own texts must not be written to. */
ITUNITECHNIK_API it_char16* getFullReinforcementString(void);

/* Gives back any result of getFullReinforcementString, once; null is ignored.
 * No other pointer may be passed. */
ITUNITECHNIK_API void freeFullReinforcementString(it_char16* text);

#ifdef __cplusplus
}
#endif

#endif /* ITUNITECHNIK_H */
