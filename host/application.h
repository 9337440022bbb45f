// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The program from its arguments to its exit code.

#ifndef TESSARIN_HOST_APPLICATION_H
#define TESSARIN_HOST_APPLICATION_H

namespace tessarin::host {

/// Runs the program and answers its exit code.
int runApplication(int argc, char **argv);

} // namespace tessarin::host

#endif
