/* The reading library: any Unitechnik file read for a host, as UTF-8 JSON.
 *
 * It stands beside the writing library (itunitechnik.h) and exports only the
 * calls below. A file is read tolerantly: every file the writer writes, at
 * every version, and files from other writers and other hands (lines that
 * lost their trailing blanks, no final line end, bare line feeds), each
 * such departure named in the result.
 *
 * Every call is safe to make with any bytes: no exception and no signal
 * leaves the library, and a file that does not read gives a result that
 * says where and why. A result is the host's until it hands it back to
 * itrFree. Results are independent of each other; the library keeps no
 * state between calls.
 */
#ifndef ITUNITECHNIK_READING_H
#define ITUNITECHNIK_READING_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#if defined(ITUNITECHNIK_READING_BUILDING)
#define ITR_API __declspec(dllexport)
#else
#define ITR_API __declspec(dllimport)
#endif
#else
#define ITR_API __attribute__((visibility("default")))
#endif

/* What a result holds, as bits of the `parts` argument. */
#define ITR_RECORDS 1 /* "document": every member of every record, as `unitechnik dump --json` has it */
#define ITR_PLANT 2   /* "plant": the orders read as the plant reads them: bar sets, girder groups, mats, ... */
#define ITR_BOM 4     /* "bom": the bill of materials, as `unitechnik bom --json` has it */
#define ITR_ALL 7

/* A read file. The JSON text is one object:
 *   "ok": true when the file read to its end;
 *   "error": null, or {"line", "column", "message"} of the place where the
 *            reading stopped (line and column from 1), or {"line": 0,
 *            "column": 0, "message"} when the file could not be opened;
 *   "departures": the names of what the file needed of the tolerant reading;
 *   "bareLineEnds": how many lines end in a line feed without its CR;
 *   and the parts asked for. What was read before a stop is there too. */
typedef struct ItrResult ItrResult;

/* Reads the file at a UTF-8 path (on Windows too). Never returns null unless
 * memory runs out. */
ITR_API ItrResult* itrReadFile(const char* pathUtf8, int parts);

/* Reads `size` bytes of a file held in memory; `bytes` may be null when
 * `size` is 0. */
ITR_API ItrResult* itrReadBytes(const void* bytes, size_t size, int parts);

/* 1 when the file read to its end, else 0; 0 for a null result. */
ITR_API int itrOk(const ItrResult* result);

/* The result as zero-terminated UTF-8 JSON, owned by the result; "" for a
 * null result. */
ITR_API const char* itrJson(const ItrResult* result);

/* Hands a result back; null is allowed. */
ITR_API void itrFree(ItrResult* result);

/* The table of what the plant reads in each numbered member, as UTF-8 JSON:
 * [{"record", "member", "name", "meaning", "unit"}, ...]. A host fills and
 * reads records by the plant's names through it. Static: never freed. */
ITR_API const char* itrPlantMeanings(void);

#ifdef __cplusplus
}
#endif

#endif /* ITUNITECHNIK_READING_H */
