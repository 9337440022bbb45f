// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/application.h"

int main(int argc, char **argv)
{
    return tessarin::host::runApplication(argc, argv);
}
