/* A host written in C: the public header and the import library must serve it too. */
#ifndef ZORVIC_TESTS_C_HOST_H
#define ZORVIC_TESTS_C_HOST_H

#ifdef __cplusplus
extern "C" {
#endif

enum { layoutCount = 5 };
typedef void (*Function)(void);

/* The addresses of the layouts: center, uniform, tile, top tile, nine-grid. */
void LayoutsSeenFromC(Function layouts[layoutCount]);

#ifdef __cplusplus
}
#endif

#endif
