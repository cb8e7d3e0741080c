# SPDX-License-Identifier: Apache-2.0
"""The pictures of a printed strip: what it shows, where its parts lie, how they look, the files."""
