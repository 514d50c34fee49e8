#pragma once
// Compares a picture with the one kept of it under data/golden/<name>.bmp, pixel by pixel:
//
//     tests::Canvas canvas(100, 40);
//     control.DrawSomething(canvas.Dc(), rect);
//     tests::ExpectGolden(canvas, "something_disabled");
//
// Where they differ, the test fails and the picture as it is now goes to golden-actual/<name>.bmp below the current
// folder. With the environment variable UPDATE_GOLDEN set to 1 the kept picture is written anew; the test fails all the
// same, so that an update can't pass for a check. Kept pictures show no text, since fonts differ.

#include "Bitmap.h"

namespace tests
{
/// name: letters, digits and underscores.
void ExpectGolden(Canvas const & canvas, char const * name);
} // namespace tests
