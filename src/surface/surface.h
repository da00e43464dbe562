// Everything that a screen is written against, in one include.
#pragma once

#include "surface/app.h"
#include "surface/controls.h"
#include "surface/dialogs.h"
#include "surface/drawing.h"
#include "surface/errors.h"
#include "surface/event.h"
#include "surface/form.h"
#include "surface/gdi.h"
#include "surface/numbers.h"
#include "surface/printer.h"
#include "surface/random.h"
#include "surface/screen.h"
#include "surface/timer.h"
