#include "exports/c_host.h"

#include "zorvic/zorvic.h"

void LayoutsSeenFromC(Function layouts[layoutCount]) {
    layouts[0] = (Function)DrawTextureCenter;
    layouts[1] = (Function)DrawTextureUniform;
    layouts[2] = (Function)DrawTextureTile;
    layouts[3] = (Function)DrawTextureTopTile;
    layouts[4] = (Function)DrawTexture9Grid;
}
