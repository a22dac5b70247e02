#pragma once

#include "shell/FeedbackMail.h"

/// What the build says of the program.
namespace program {

/// Tells the application object, which must exist, its name, version and type face.
void describe();

/// What a feedback mail says of the program and where it goes.
feedback::Program feedbackProgram();

} // namespace program
