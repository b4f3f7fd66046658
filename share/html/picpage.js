// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Loaded after sniffer.js by all pages that show pictures. It
//  - shows the title of the page in the top left frame: a picture belongs to no single tree, so there is no path,
//  - shows where in a picture a person stands: a rectangle R1, R2 ... for each name N1, N2 ..., or the arrow,
//  - scales a picture that is wider than the screen, together with its marks,
//  - says what links and pictures are to who does not see them.
//
// Marks are in pixels of the picture at its full size; everything that is laid over it stands in #imageLayer, whose upper left
// corner is the picture's, so that one scale fits all.

var lockedRectangles = new Set();

function showRectangle(n, visible) {
    var layer = document.getElementById("R" + n);
    var name = document.getElementById("N" + n);
    if (layer && name) {
        layer.style.visibility = visible ? "visible" : "hidden";
        name.classList.toggle("lit", visible);
    }
}

// The pointer or the focus has come to a name, and has left it.
function overName(name, n) {
    showRectangle(n, true);
}

function outofName(name, n) {
    if (!lockedRectangles.has(String(n))) {
        showRectangle(n, false);
    }
}

// Keeps a rectangle until it is called again.
function lockPointer(n) {
    var locks = !lockedRectangles.delete(String(n));
    if (locks) {
        lockedRectangles.add(String(n));
    }
    showRectangle(n, locks);
    var icon = document.querySelector("#N" + n + " > IMG");
    if (icon) {
        icon.setAttribute("aria-pressed", locks);
    }
    if (locks) {
        document.getElementById("R" + n).scrollIntoView({ block: "nearest", inline: "nearest" });
    }
}

// Points the arrow's tip at a place of the picture. Near an edge the arrow comes from the other side.
function showArrow(x, y) {
    var tip = 4;
    var length = 60;
    var layer = document.getElementById("arrowLayer");
    var picture = document.getElementById("picture");
    var turned = function (place, end) { return Number(place) + length > end && Number(place) > length ? -1 : 1; };
    layer.style.left = x - tip + "px";
    layer.style.top = y - tip + "px";
    layer.style.setProperty("--across", turned(x, picture.offsetWidth));
    layer.style.setProperty("--down", turned(y, picture.offsetHeight));
    layer.style.visibility = "visible";
    markArrowLinks(String(x), String(y));
    layer.scrollIntoView({ block: "nearest", inline: "nearest" });
}

function hideArrow() {
    document.getElementById("arrowLayer").style.visibility = "hidden";
    markArrowLinks();
}

var arrowLink = /^javascript:showArrow\('(-?\d+)', '(-?\d+)'\)$/;

function markArrowLinks(x, y) {
    document.querySelectorAll("A[HREF^='javascript:showArrow']").forEach(function (link) {
        var place = arrowLink.exec(link.getAttribute("href"));
        link.parentNode.classList.toggle("lit", place[1] === x && place[2] === y);
    });
}

(function () {
    function prepareName(name) {
        var n = name.id.slice(1);
        var icon = name.querySelector("IMG");
        icon.tabIndex = 0;
        icon.setAttribute("role", "button");
        icon.setAttribute("aria-pressed", "false");
        icon.alt = "Show " + name.textContent.trim();
        icon.addEventListener("keydown", function (event) {
            if (event.key === "Enter" || event.key === " ") {
                event.preventDefault();
                lockPointer(n);
            }
        });
        name.addEventListener("focusin", function () { overName(name, n); });
        name.addEventListener("focusout", function () { outofName(name, n); });
        // Beside icon and link the name itself can be tapped, which is easier on a phone.
        name.addEventListener("click", function (event) {
            if (!event.target.closest("A, IMG")) {
                lockPointer(n);
            }
        });
    }

    // Pointing at a person in the picture lights up the rectangle and the name as well.
    function preparePicture(layers) {
        var frame = document.getElementById("imageLayer");
        var current = null;

        function numberAt(event) {
            var found = layers.filter(function (layer) {
                var box = layer.getBoundingClientRect();
                return event.clientX >= box.left && event.clientX <= box.right && event.clientY >= box.top && event.clientY <= box.bottom;
            }).sort(function (one, other) { return one.offsetWidth * one.offsetHeight - other.offsetWidth * other.offsetHeight; })[0];
            return found ? found.id.slice(1) : null;
        }

        function point(n) {
            if (n !== current) {
                if (current) {
                    outofName(null, current);
                }
                if (n) {
                    overName(null, n);
                }
                current = n;
            }
        }

        frame.addEventListener("pointermove", function (event) {
            if (event.pointerType === "mouse") {
                point(numberAt(event));
            }
        });
        frame.addEventListener("pointerleave", function () { point(null); });
        frame.addEventListener("click", function (event) {
            var n = numberAt(event);
            if (n && !event.target.closest("A")) {
                lockPointer(n);
            }
        });
    }

    function fitPicture() {
        var frame = document.getElementById("imageLayer");
        var cell = document.getElementById("imageCell");
        var picture = document.getElementById("picture");
        // What an element has for its content, whatever a browser counts to the width of the body.
        var within = function (element, width) {
            var style = getComputedStyle(element);
            return ["paddingLeft", "paddingRight", "borderLeftWidth", "borderRightWidth"].reduce(function (rest, side) {
                return rest - parseFloat(style[side]);
            }, width);
        };
        var room = within(cell, within(document.body, document.body.offsetWidth));
        var width = Number(picture.getAttribute("width")) || picture.naturalWidth;
        var scale = width ? Math.min(1, room / width) : 1;
        frame.style.zoom = scale;
        frame.style.setProperty("--scale", scale);
        cell.classList.toggle("low", cell.offsetHeight < innerHeight / 2);
    }

    document.addEventListener("DOMContentLoaded", function () {
        showTitle(document.title);
        // "View" says nothing when it is heard alone.
        document.querySelectorAll(".pictures TD A").forEach(function (link) {
            var cells = link.closest("TR").cells;
            link.setAttribute("aria-label", "View picture " + cells[0].textContent + " " + cells[3].textContent.trim());
        });
        document.querySelectorAll(".gallery TD IMG").forEach(function (image) {
            image.alt = image.closest("A").textContent.trim() ? "" : "Picture without a title";
        });
        if (!document.getElementById("picture")) {
            return;
        }
        document.querySelectorAll("[ID^=N][onmouseover]").forEach(prepareName);
        preparePicture(Array.from(document.querySelectorAll("#imageLayer DIV[ID^=R]")));
        document.querySelectorAll("A[HREF^='javascript:showArrow']").forEach(function (link) {
            var place = arrowLink.exec(link.getAttribute("href"));
            link.addEventListener("focus", function () { showArrow(place[1], place[2]); });
        });
        document.getElementById("picture").addEventListener("load", fitPicture);
        addEventListener("resize", fitPicture);
        fitPicture();
    });
})();
