# SPDX-License-Identifier: Apache-2.0
# Pages for Doxygen, which knows pictures by their names alone.
s#](\(\.\./\)*pictures/\(moving/\)*#](#g
