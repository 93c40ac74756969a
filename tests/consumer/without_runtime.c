/* What a compiler's runtime does for a program, for builds that have none: starts it and ends it. */
#include <windows.h>

int _fltused; /* the compiler asks for it where there are floats */

int main(void);

void mainCRTStartup(void) { ExitProcess((UINT)main()); }

/* The compiler's tables of abstract classes name it. */
int __cdecl _purecall(void) { ExitProcess(99); }
