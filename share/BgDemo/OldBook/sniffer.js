// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Loaded by every page of a published site, and by its frameset. It
//  - tells the pages what the browser can do (is_ie5up, is_gecko),
//  - adds the style sheets of the site to the page,
//  - carries the path of pages, the title and the tree icon of a page to the frame frmTopLeft,
//  - sets the lines of an outline so that they wrap under their own text,
//  - brings the head of a tree of rectangles into view,
//  - offers the whole site to a visitor who opened a single page,
//  - fits the frameset to the screen.

var is_ie5up = Boolean(document.documentMode);
var is_gecko = Boolean(document.querySelector && window.postMessage);

document.write('<META NAME="viewport" CONTENT="width=device-width, initial-scale=1">' +
    '<LINK REL="stylesheet" HREF="../../graphics/common.css"><LINK REL="stylesheet" HREF="../../BgStyles/OldBook/graphics/site.css">');

// Shows three texts in the top left frame; each is HTML (characters such as < escaped), an empty text clears its place.
var showPath = (function () {
    var frameset = window.parent;
    var handed = {};

    function send(id) {
        // Pages opened from disk have no origin that could be named.
        var origin = /^http/.test(location.protocol) ? location.origin : "*";
        for (var i = 0; frameset !== window && i < frameset.frames.length; i++) {
            frameset.frames[i].postMessage({ place: id, text: handed[id] }, origin);
        }
    }

    function hand(id, text) {
        handed[id] = String(text);
        send(id);
    }

    // A top left frame that loads after this page asks for what it has missed.
    window.addEventListener("message", function (event) {
        if (event.data && event.data.ask === "path") {
            Object.keys(handed).forEach(send);
        }
    });

    // Pages write to parent.frames["frmTopLeft"].document.getElementById(id).innerHTML. A browser forbids that between pages
    // opened from disk, and it fails while the other frame is still loading, so this object takes the text instead.
    window.parent = {
        frames: {
            frmTopLeft: {
                document: {
                    getElementById: function (id) {
                        return Object.defineProperty({}, "innerHTML", { set: function (text) { hand(id, text); } });
                    }
                }
            }
        }
    };

    return function (roots, owner, icon) {
        hand("DocRoots", roots);
        hand("DocOwner", owner);
        hand("Icon", icon);
    };
})();

// Turns plain text into HTML that shows it.
function escapedText(text) {
    var element = document.createElement("SPAN");
    element.textContent = text;
    return element.innerHTML;
}

// Makes `text` the title of a page that has no place in a tree.
function showTitle(text) {
    document.title = text;
    showPath("", escapedText(text), "");
}

(function () {
    var page = location.pathname.replace(/^.*\//, "");
    var alone = window.top === window;
    var isLocalPage = /^[A-Za-z]\w*\.html(#\w*)?$/;

    var display = { Outline: "outline", DescTree: "charted", AncTree: "charted" }[page.replace(/_.*$/, "")];
    if (display) {
        document.documentElement.className = display;
    }

    function setOutline() {
        document.querySelectorAll("NOBR > FONT, BODY > FONT").forEach(function (line) {
            var text = line.firstChild;
            var dots = text && text.nodeType === Node.TEXT_NODE ? /^\.*/.exec(text.data)[0].length : 0;
            if (dots) {
                var leader = document.createElement("SPAN");
                leader.className = "leader";
                text.splitText(dots);
                line.replaceChild(leader, text);
                leader.appendChild(text);
            }
            line.className = "line";
            line.style.setProperty("--dots", dots);
        });
    }

    // The head stands at the left, halfway down.
    function showHead() {
        var head = document.getElementsByName(/\d*(?=\.html$)/.exec(page)[0])[0];
        if (head && !location.hash) {
            head.closest(".cell").scrollIntoView({ block: "center", inline: "start" });
        }
    }

    function offerSite() {
        var link = document.createElement("A");
        link.href = "tree.html" + (isLocalPage.test(page + location.hash) ? "#" + page + location.hash : "");
        link.className = "in-site";
        link.textContent = "Open in its site";
        document.body.insertBefore(link, document.body.firstChild);
    }

    // Each FRAMESET names its rows and columns for wide, narrow and short screens: DATA-NARROW="rows / columns".
    function fitFrameset(framesets) {
        var narrow = matchMedia("(max-width: 700px)");
        var short = matchMedia("(max-height: 500px)");
        function fit() {
            framesets.forEach(function (frameset) {
                var kind = short.matches ? "short" : narrow.matches ? "narrow" : "wide";
                var sizes = frameset.dataset[kind].split(" / ");
                frameset.rows = sizes[0];
                frameset.cols = sizes[1];
            });
        }
        [narrow, short].forEach(function (screen) { screen.addEventListener("change", fit); });
        fit();
    }

    function openChosenPage() {
        var chosen = location.hash.slice(1);
        if (isLocalPage.test(chosen)) {
            window.frames.frmCenter.location.replace(chosen);
        }
    }

    document.addEventListener("DOMContentLoaded", function () {
        var framesets = document.querySelectorAll("FRAMESET");
        if (framesets.length) {
            fitFrameset(framesets);
            openChosenPage();
            window.addEventListener("hashchange", openChosenPage);
            return;
        }
        if (display === "outline") {
            setOutline();
        }
        if (alone) {
            offerSite();
        }
        if (display === "charted") {
            showHead();
        }
    });
})();
