/*
 * itunitechnik.h - the C interface of the Unitechnik CAD/CAM writer.
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
 */
#ifndef ITUNITECHNIK_H
#define ITUNITECHNIK_H

#include <stddef.h>
#include <stdint.h>

#ifndef __cplusplus
#include <stdbool.h>
#endif

/* ITUNITECHNIK_VERSION_MAJOR, _MINOR, _PATCH and _STRING: the version of the
 * library this header belongs to. */
#include "itunitechnik_version.h"

#if defined(_WIN32)
#  if defined(ITUNITECHNIK_BUILDING)
#    define ITUNITECHNIK_API __declspec(dllexport)
#  elif defined(ITUNITECHNIK_STATIC)
#    define ITUNITECHNIK_API
#  else
#    define ITUNITECHNIK_API __declspec(dllimport)
#  endif
#else
#  define ITUNITECHNIK_API __attribute__((visibility("default")))
#endif

#if defined(_WIN32)
typedef wchar_t it_char16;
#elif defined(__cplusplus)
typedef char16_t it_char16;
#else
typedef uint_least16_t it_char16;
#endif

/* Compile-time checks of the block layouts, in C99 as well as in C++. */
#if defined(__cplusplus)
#  define IT_LAYOUT_CHECK(cond, name) static_assert(cond, #name)
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L
#  define IT_LAYOUT_CHECK(cond, name) _Static_assert(cond, #name)
#else
#  define IT_LAYOUT_CHECK(cond, name) typedef char it_layout_check_##name[(cond) ? 1 : -1]
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* setProjectData: a block of 19 pointers to texts, in this order. */
enum {
    IT_PROJECT_ORDER_NUMBER = 0, /* empty: "12345678" is used */
    IT_PROJECT_ORDER_TEXT5 = 1,
    IT_PROJECT_ORDER_TEXT4 = 2,
    IT_PROJECT_ORDER_TEXT8 = 3,
    IT_PROJECT_TEXT1 = 4,        /* 4 to 7: the project's four texts */
    IT_PROJECT_FIRST_ADDRESS1 = 8,   /* 8 to 11: the first address */
    IT_PROJECT_SECOND_ADDRESS1 = 12, /* 12 to 15: the second address */
    IT_PROJECT_DATE = 16,        /* dd.mm.yyyy, read by position */
    IT_PROJECT_ORDER_TEXT2 = 17,
    IT_PROJECT_ORDER_TEXT40 = 18,
    IT_PROJECT_TEXT_COUNT = 19
};

/* addCutout: the opening's block. */
typedef struct ItCutoutBlock {
    const it_char16* cutoutName; /* offset 0 */
    double cutoutValue;          /* offset 8 */
    uint16_t pointCount;         /* offset 16 */
} ItCutoutBlock;

IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, cutoutName) == 0, cutout_name);
IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, cutoutValue) == 8, cutout_value);
IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, pointCount) == 16, cutout_point_count);
IT_LAYOUT_CHECK(sizeof(ItCutoutBlock) == 24, cutout_size);

/* addStraightRodstock and addFreeFormRodstock: the bar block. The cells marked
 * free-form are read by addFreeFormRodstock alone; the unused bytes are never
 * read. */
typedef struct ItBarBlock {
    const it_char16* extraDesignation; /* offset 0, free-form */
    const it_char16* designation;      /* offset 8 */
    int32_t auxFourth;                 /* offset 16, free-form */
    int32_t auxFifth;                  /* offset 20, free-form */
    int32_t auxSixth;                  /* offset 24 */
    int32_t thirdSize;                 /* offset 28 */
    int32_t positionX;                 /* offset 32 */
    int32_t positionY;                 /* offset 36 */
    int32_t positionZ;                 /* offset 40 */
    uint16_t firstSize;                /* offset 44 */
    uint16_t secondSize;               /* offset 46 */
    int16_t rotation;                  /* offset 48 */
    uint16_t auxFirst;                 /* offset 50, free-form */
    uint8_t unused52[2];               /* offset 52, not read */
    uint16_t segmentCount;             /* offset 54, free-form: entries behind the second argument */
    uint8_t rodKind;                   /* offset 56 */
    uint8_t notMounted;                /* offset 57, free-form: 0 means mounted */
    uint8_t unused58[2];               /* offset 58, not read */
    uint8_t bendingCode;               /* offset 60, free-form */
    uint8_t unused61[3];               /* offset 61, not read */
} ItBarBlock;

IT_LAYOUT_CHECK(offsetof(ItBarBlock, extraDesignation) == 0, bar_extra_designation);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, designation) == 8, bar_designation);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, auxFourth) == 16, bar_aux_fourth);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, auxFifth) == 20, bar_aux_fifth);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, auxSixth) == 24, bar_aux_sixth);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, thirdSize) == 28, bar_third_size);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, positionX) == 32, bar_position_x);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, positionY) == 36, bar_position_y);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, positionZ) == 40, bar_position_z);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, firstSize) == 44, bar_first_size);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, secondSize) == 46, bar_second_size);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, rotation) == 48, bar_rotation);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, auxFirst) == 50, bar_aux_first);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, segmentCount) == 54, bar_segment_count);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, rodKind) == 56, bar_rod_kind);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, notMounted) == 57, bar_not_mounted);
IT_LAYOUT_CHECK(offsetof(ItBarBlock, bendingCode) == 60, bar_bending_code);
IT_LAYOUT_CHECK(sizeof(ItBarBlock) == 64, bar_size);

/* addFreeFormRodstock: one segment entry of the second argument. */
typedef struct ItFreeFormSegment {
    int32_t length;     /* offset 0 */
    int16_t angle;      /* offset 4 */
    uint8_t unused6[2]; /* offset 6, not read */
} ItFreeFormSegment;

IT_LAYOUT_CHECK(offsetof(ItFreeFormSegment, length) == 0, segment_length);
IT_LAYOUT_CHECK(offsetof(ItFreeFormSegment, angle) == 4, segment_angle);
IT_LAYOUT_CHECK(sizeof(ItFreeFormSegment) == 8, segment_size);

/* Orders and the document. */

/* Opens an order with its one element; a non-zero clearDocument drops the
 * earlier orders first. Returns 1; 0 on a failure inside the library, when
 * the order was not added (the earlier orders are dropped all the same if
 * clearDocument asked for it). */
ITUNITECHNIK_API int32_t startOrder(uint16_t orderValue, int32_t elementNumberArg,
                                    const double* placement, uint16_t version,
                                    const it_char16* elementTextArg, double elementMeasureArg,
                                    bool clearDocument);
/* Writes every order to path. Returns 1, also when the file cannot be made
 * (a missing or read-only directory, a path that is a directory) or a write
 * fails part way (a full disk, a pipe whose reader has gone, a FIFO that
 * nobody reads): such faults are not reported, and what reached the file
 * before the fault stays as written. Returns 0 when the stream is unhealthy
 * from the start, or on a failure inside the library. The document stays as
 * it is either way, so a second call with another path writes it whole. */
ITUNITECHNIK_API int32_t endDocument(const it_char16* path);

/* Project and element setters. */

/* Fills every order's texts, project, addresses and date. The date text is
 * read by position, dd.mm.yyyy. A date text shorter than six characters, or
 * one whose day, month or year holds no number, stops the call at that
 * order: the orders before it are complete, that order has its number and
 * the three texts behind it set and keeps the rest, and the orders behind it
 * are untouched. Nothing is returned and nothing is thrown. */
ITUNITECHNIK_API void setProjectData(const it_char16* const* texts);
/* These four change nothing on a failure inside the library. */
ITUNITECHNIK_API void setSlabInfoFields(const it_char16* slabInfo1, const it_char16* slabInfo2,
                                        const it_char16* slabInfo3, const it_char16* slabInfo4);
ITUNITECHNIK_API void setThicknesses(int32_t thickness, int32_t secondThickness);
ITUNITECHNIK_API void setDoubleWallGap(int32_t doubleWallGap);
ITUNITECHNIK_API void addLayer(uint16_t layerKind, double thicknessMetres, double firstFactor,
                               double secondFactor, const it_char16* layerName);

/* Outline adders. The functions without a result add nothing on a failure
 * inside the library. */
ITUNITECHNIK_API void addContour(int32_t pointCount, const int32_t* points);
ITUNITECHNIK_API void addCutout(const ItCutoutBlock* block, const int32_t* points);
/* Returns 1 when done; 0 with no current element or an unknown kind, and 0 on
 * a failure inside the library (girders of kind 5 added before it stay). */
ITUNITECHNIK_API int32_t addSet(int32_t setKind, const it_char16* setName, int32_t valueCount,
                                const int32_t* values);

/* Reinforcement adders. The functions without a result add nothing on a
 * failure inside the library. */

/* Returns the mat's number; 0 with no current element, and 0 on a failure
 * inside the library. */
ITUNITECHNIK_API int32_t addSteelmat(const it_char16* name, int32_t firstDimension,
                                     int32_t secondDimension, int32_t firstFlag,
                                     int32_t secondFlag, int32_t matKind, const int32_t* position);
/* Returns the bar's number in the last mat; 0 with no current element; -1
 * when no mat takes the bar, and -1 on a failure inside the library. */
ITUNITECHNIK_API int32_t addCFSRodstock(int32_t rodKind, const it_char16* designation,
                                        int32_t firstSize, int32_t secondSize, int32_t thirdSize,
                                        const int32_t* position, int32_t positionZ,
                                        int32_t rotation, const it_char16* extraDesignation,
                                        int32_t mountFlag, int32_t auxFirst, int32_t auxFourth,
                                        int32_t auxFifth, int32_t flagsCode);
ITUNITECHNIK_API void addStraightRodstock(const ItBarBlock* bar);
ITUNITECHNIK_API void addFreeFormRodstock(const ItBarBlock* bar, const ItFreeFormSegment* segments);
/* Returns the iron's number; 0 with no current element, and 0 on a failure
 * inside the library. */
ITUNITECHNIK_API int32_t addExtIron(int32_t ironCode, int32_t ironCount, double ironValue,
                                    const it_char16* ironText);

/* The reinforcement summary string: the mounted parts, loose bars, loose
 * girders, mats and external irons of the current element, in the text of
 * their records, each line ended by a line feed alone. The result is one of
 * three kinds: a block the caller owns (the text); an empty string of the
 * library's own, when there is no current element; or one of the library's
 * own texts "ERROR MOUNPART", "ERROR RODSTOCK", "ERROR BRGIRDER",
 * "ERROR REFORCEM" and "ERROR EXTIRON_", when that record could not be
 * written, and "ERROR MEMORY" on a failure inside the library. Give every
 * result back with freeFullReinforcementString, which
 * frees a block (CoTaskMemFree on Windows, free elsewhere) and leaves the
 * library's own texts alone; a Windows host may also free a block itself
 * with CoTaskMemFree, but then must not free the other two kinds. */
ITUNITECHNIK_API it_char16* getFullReinforcementString(void);
/* Gives back any result of getFullReinforcementString; null is ignored. */
ITUNITECHNIK_API void freeFullReinforcementString(it_char16* text);

#ifdef __cplusplus
}
#endif

#endif /* ITUNITECHNIK_H */
