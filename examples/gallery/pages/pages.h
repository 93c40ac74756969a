// The pages of the gallery, each in a file of its own.
#pragma once

#include "../picture.h"
#include "../sheet.h"

Sheet PicturesPage(const Pictures& pictures);
Sheet FillsPage(const Pictures& pictures);
Sheet DepthsPage(const Pictures& pictures);
Sheet OperationsPage(const Pictures& pictures);
Sheet ColorKeyPage(const Pictures& pictures);
Sheet ClipPage(const Pictures& pictures);
Sheet NearestPage(const Pictures& pictures);
Sheet SlicesPage(const Pictures& pictures);
Sheet CompositionPage(const Pictures& pictures);
Sheet GdiPage(const Pictures& pictures);
Sheet EffectsPage(const Pictures& pictures);
Sheet ColorizePage(const Pictures& pictures);
Sheet BlurPage(const Pictures& pictures);
Sheet GlowPage(const Pictures& pictures);
Sheet RegionsPage(const Pictures& pictures);
Sheet FiltersPage(const Pictures& pictures);
Sheet LayoutsPage(const Pictures& pictures);
Sheet TransformsPage(const Pictures& pictures);
Sheet ShapesPage(const Pictures& pictures);
Sheet StrokesPage(const Pictures& pictures);
Sheet BlendingPage(const Pictures& pictures);
Sheet GradientsPage(const Pictures& pictures);
Sheet OutlinesPage(const Pictures& pictures);
