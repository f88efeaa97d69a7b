#ifndef MIVO_LANGUAGE_H
#define MIVO_LANGUAGE_H

/*
 * What a language library offers to Mivo: one C function. The library is called "mivo_lang.dll", on
 * every system, and stands beside the program.
 *
 * The binary interface is the name of the function, its three 32-bit numbers by value in the
 * platform's calling convention of C, and the text that it returns. It never changes under this
 * name: another interface gets a function of another name, which a library of this kind lacks.
 */

#include <stdint.h>

#ifdef _WIN32
#define MIVO_LANGUAGE_EXPORT __declspec(dllexport)
#define MIVO_LANGUAGE_CALL __cdecl
#else
#define MIVO_LANGUAGE_EXPORT __attribute__((visibility("default")))
#define MIVO_LANGUAGE_CALL
#endif

/* The function's name, and the most bytes that its texts may take with their final NUL. */
#define MIVO_LANGUAGE_FUNCTION "MivoLanguageText"
#define MIVO_LANGUAGE_MAX_BYTES 4096

#ifdef __cplusplus
extern "C" {
#endif

typedef const char*(MIVO_LANGUAGE_CALL* MivoLanguageFunction)(int32_t kind, int32_t number,
                                                              int32_t control);

/*
 * The text of this kind and number in UTF-8, ended by a NUL, or NULL where the library has none and
 * the program's own is shown. For a control of a dialog the number is the dialog's; `control` is 0
 * for everything else. The text stays valid and unchanged until the process ends. Called for any
 * numbers whatever, by one thread at a time; throws nothing.
 */
MIVO_LANGUAGE_EXPORT const char* MIVO_LANGUAGE_CALL MivoLanguageText(int32_t kind, int32_t number,
                                                                     int32_t control);

#ifdef __cplusplus
}
#endif

#endif
