#pragma once

#include <QByteArray>

#include <functional>

/// How the window is drawn. On a machine without a graphics card the toolkit's own software rendering starts in less than half
/// the time of the graphics library's and takes a third of its memory.
namespace rendering {

/// True where the window is to be drawn in software: no graphics card, nothing chosen by one of the environment variables
/// with which the toolkit and the graphics library let a user choose, and no scale below 1. `valueOf` gives what a variable
/// holds.
bool drawsInSoftware(bool hasGraphicsCard, const std::function<QByteArray(const char *variable)> &valueOf);

/// Chooses for this process, once, ahead of the application object. Nothing goes into the environment, which the programs
/// that are opened from here would inherit.
void choose(bool hasGraphicsCard);

} // namespace rendering
