// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Loaded after sniffer.js by the pages that show pictures. A picture belongs to no single tree, so its page has no path: the
// top left frame shows the page's own title.
document.addEventListener("DOMContentLoaded", function () {
    showTitle(document.title);
});
