#pragma once

/// Binds every name of session/screens.h that has a class. Called once, before the first screen.
void bindScreens();
