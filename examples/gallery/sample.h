// Pictures drawn by formula, for a gallery without files.
#pragma once

#include "surface.h"

enum class Daytime { day, night };

// A landscape with balloons, 768 x 512, opaque.
Bitmap SampleLandscape(Daytime daytime);
// A button of 190 x 49 and a glass ball of 96 x 96, with soft edges and a shadow.
Bitmap SampleButton();
Bitmap SampleBall();
// The rest of a skin: a panel of 100 x 100 with a title bar and studs in its corners, and a slider: a groove of 190 x 10
// and a thumb of 28 x 42.
Bitmap SamplePanel();
Bitmap SampleGroove();
Bitmap SampleThumb();
