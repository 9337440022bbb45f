// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/survivors.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tessarin {

namespace {

struct Survivors {
    std::vector<std::shared_ptr<pde::Bundle>> bundles;
    std::vector<std::shared_ptr<pde::PanelArray>> panels;
    std::vector<std::unique_ptr<char[]>> strings;
    std::vector<PanelContext *> contexts;
};

Survivors &survivors()
{
    static auto *kept = new Survivors;
    return *kept;
}

} // namespace

void keepForEver(const std::shared_ptr<pde::Bundle> &bundle)
{
    auto &bundles = survivors().bundles;
    if (bundle && std::find(bundles.begin(), bundles.end(), bundle) == bundles.end()) {
        bundles.push_back(bundle);
    }
}

void keepForEver(const std::shared_ptr<pde::PanelArray> &panels)
{
    if (panels) {
        survivors().panels.push_back(panels);
    }
}

void keepForEver(std::unique_ptr<char[]> strings)
{
    if (strings) {
        survivors().strings.push_back(std::move(strings));
    }
}

void rememberContext(PanelContext *context)
{
    survivors().contexts.push_back(context);
}

void forgetContext(PanelContext *context)
{
    std::erase(survivors().contexts, context);
}

} // namespace tessarin
