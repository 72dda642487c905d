// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/network/NetworkModule.h"
#include "platform/linux/network/WebFeedFetcher.h"

#include <QObject>

namespace dropshade {

class NetworkPlugin : public QObject, public NetworkModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DROPSHADE_NETWORK_MODULE)
    Q_INTERFACES(dropshade::NetworkModule)

public:
    [[nodiscard]] std::unique_ptr<FeedFetcher> makeFeedFetcher() override {
        return std::make_unique<WebFeedFetcher>();
    }
};

} // namespace dropshade

#include "NetworkPlugin.moc"
