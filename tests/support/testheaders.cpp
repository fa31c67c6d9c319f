// SPDX-License-Identifier: Apache-2.0
// Nothing of its own: what the tests include is precompiled with it.
