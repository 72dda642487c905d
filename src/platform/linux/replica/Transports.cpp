// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The home of the signals of an interface that has no code of its own.
#include "platform/linux/replica/ReplicaTransport.h"
