# SPDX-License-Identifier: Apache-2.0
# The page of a class, for Doxygen: behind its first line goes the way to the reference.
1s#^\# \([A-Za-z]*\) {.*}$#&\n\n<p class="reference">All functions: @ref \1 "reference of \1"</p>#
s#](\(\.\./\)*pictures/\(moving/\)*#](#g
