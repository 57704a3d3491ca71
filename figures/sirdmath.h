/* The library of mathematical figures: surfaces given as a depth level at each pixel.
 *
 * Every function may be called from several threads at once. */
#pragma once

#include <stdint.h>

#define SIRDMATH_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* A program calls this before the other functions, and _UnloadFigureTitles after them. */
SIRDMATH_API void _InitFigureTitles(void);
SIRDMATH_API void _UnloadFigureTitles(void);

/* Figures are numbered from 0 to the count - 1. */
SIRDMATH_API int32_t _GetFigureCount(void);

/* Writes the title (at most 39 characters, ASCII) of a figure into `buffer` of `size` bytes, cut to
 * fit and always terminated; an empty text for a number out of range. Nothing is written when
 * `buffer` is null or `size` is below 1. */
SIRDMATH_API void _GetFigureTitle(int32_t number, char* buffer, int32_t size);

/* The level of one pixel, 0 (far, also where the figure has no point) to 24 (near). Rows count
 * upward. The figure stands upright around the centre, in a circle of about 0.72 times the smaller
 * centre coordinate (some reach 0.85 times it upward and downward). `angle`, in degrees, turns it:
 * flat figures counter-clockwise, solids about their own axis; any value is allowed. `code` is
 * -(number + 1); any other code gives 0. All coordinates are allowed. */
SIRDMATH_API int32_t _GetFigureLevel(int32_t column, int32_t row, int32_t centreColumn,
                                     int32_t centreRow, int32_t angle, int32_t code);

/* Writes the version, at most 19 characters and the terminator; null is allowed. */
SIRDMATH_API void _GetLibVersion(char* buffer);

#ifdef __cplusplus
}
#endif
