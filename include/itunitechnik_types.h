/*
 * itunitechnik_types.h - what the exports of the Unitechnik CAD/CAM writer
 * are declared with: the mark of the exports, the 16-bit text unit, the texts
 * of setProjectData's block, and the blocks of addCutout, addStraightRodstock
 * and addFreeFormRodstock, each with its layout checked at compile time.
 *
 * itunitechnik.h includes it, and a host includes itunitechnik.h, where the
 * exports and what they do with these blocks are described.
 */
#ifndef ITUNITECHNIK_TYPES_H
#define ITUNITECHNIK_TYPES_H

#include <stddef.h>
#include <stdint.h>

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

/* Compile-time checks of the block layouts, in C99 as well as in C++. The
 * WebAssembly build of the viewer (32-bit pointers) reads files and serves
 * no host, so the 64-bit layouts are not checked there. */
#if defined(__EMSCRIPTEN__)
#  define IT_LAYOUT_CHECK(cond, name) typedef int it_layout_unchecked_##name
#elif defined(__cplusplus)
#  define IT_LAYOUT_CHECK(cond, name) static_assert(cond, #name)
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L
#  define IT_LAYOUT_CHECK(cond, name) _Static_assert(cond, #name)
#else
#  define IT_LAYOUT_CHECK(cond, name) typedef char it_layout_check_##name[(cond) ? 1 : -1]
#endif

/* setProjectData: a block of 19 pointers to texts, in this order (152 bytes
 * on a 64-bit host). None may be null; an empty text is written as blanks.
 * The widths are the characters that reach the file. */
enum {
    IT_PROJECT_ORDER_NUMBER = 0, /* 8 characters below version 600, 20 from 600;
                                    empty: "12345678" is used */
    IT_PROJECT_ORDER_TEXT5 = 1,  /* 5 characters */
    IT_PROJECT_ORDER_TEXT4 = 2,  /* 4 characters */
    IT_PROJECT_ORDER_TEXT8 = 3,  /* 8 characters, right-aligned */
    IT_PROJECT_TEXT1 = 4,        /* 4 to 7: the project's four texts, 20 characters each */
    IT_PROJECT_FIRST_ADDRESS1 = 8,   /* 8 to 11: the first address, 25, 25, 8 and 25 characters */
    IT_PROJECT_SECOND_ADDRESS1 = 12, /* 12 to 15: the second address, as the first */
    IT_PROJECT_DATE = 16,        /* dd.mm.yyyy, read by position (see setProjectData) */
    IT_PROJECT_ORDER_TEXT2 = 17, /* 2 characters, right-aligned; written above version 502 */
    IT_PROJECT_ORDER_TEXT40 = 18, /* 40 characters, a line of its own from version 600 */
    IT_PROJECT_TEXT_COUNT = 19
};

/* addCutout: the opening's block. */
typedef struct ItCutoutBlock {
    const it_char16* cutoutName; /* offset 0: 40 characters, written from version 600 only */
    double cutoutValue;          /* offset 8: stored and written with 3 decimals (00.000) */
    uint16_t pointCount;         /* offset 16: points behind addCutout's second argument */
} ItCutoutBlock;

IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, cutoutName) == 0, cutout_name);
IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, cutoutValue) == 8, cutout_value);
IT_LAYOUT_CHECK(offsetof(ItCutoutBlock, pointCount) == 16, cutout_point_count);
IT_LAYOUT_CHECK(sizeof(ItCutoutBlock) == 24, cutout_size);

/* addStraightRodstock and addFreeFormRodstock: the bar block, one loose bar
 * of the element's own "RODSTOCK" list. The cells marked free-form are read
 * by addFreeFormRodstock alone (a straight bar keeps their defaults: empty,
 * 0, not mounted, no bending); the unused bytes are never read. Widths and
 * digits are those of the bar's lines in the file. */
typedef struct ItBarBlock {
    const it_char16* extraDesignation; /* offset 0, free-form: 10 characters, right-aligned */
    const it_char16* designation;      /* offset 8: 3 characters below version 600, 10 from 600 */
    int32_t auxFourth;                 /* offset 16, free-form: 5 digits */
    int32_t auxFifth;                  /* offset 20, free-form: 5 digits */
    int32_t auxSixth;                  /* offset 24: 5 digits */
    int32_t thirdSize;                 /* offset 28: 5 digits */
    int32_t positionX;                 /* offset 32: millimetres, signed, 5 digits */
    int32_t positionY;                 /* offset 36: millimetres, signed, 5 digits */
    int32_t positionZ;                 /* offset 40: millimetres, signed, 5 digits */
    uint16_t firstSize;                /* offset 44: 5 digits */
    uint16_t secondSize;               /* offset 46: 3 digits */
    int16_t rotation;                  /* offset 48: signed, 3 digits */
    uint16_t auxFirst;                 /* offset 50, free-form: 3 digits */
    uint8_t unused52[2];               /* offset 52, not read */
    uint16_t segmentCount;             /* offset 54, free-form: entries behind the second argument */
    uint8_t rodKind;                   /* offset 56: 1 digit */
    uint8_t notMounted;                /* offset 57, free-form: 0 means mounted */
    uint8_t unused58[2];               /* offset 58, not read */
    uint8_t bendingCode;               /* offset 60, free-form: 0 none, 1 coded, 2 free form */
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

/* addFreeFormRodstock: one segment entry of the second argument, one leg of
 * the bent bar. */
typedef struct ItFreeFormSegment {
    int32_t length;     /* offset 0: millimetres, 5 digits */
    int16_t angle;      /* offset 4: signed, 3 digits */
    uint8_t unused6[2]; /* offset 6, not read */
} ItFreeFormSegment;

IT_LAYOUT_CHECK(offsetof(ItFreeFormSegment, length) == 0, segment_length);
IT_LAYOUT_CHECK(offsetof(ItFreeFormSegment, angle) == 4, segment_angle);
IT_LAYOUT_CHECK(sizeof(ItFreeFormSegment) == 8, segment_size);

#endif /* ITUNITECHNIK_TYPES_H */
