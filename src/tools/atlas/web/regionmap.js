// The map of one region: its picture, its markers in layers, and their windows. One pixel of the picture is one
// unit of the map; at zoom 0 it is one pixel of the page.
"use strict";

var RegionMap = (function () {
  var ZONES = 0, BOSSES = 1, GREENS = 2;
  var BOX = 13; // a boss's box, pixels
  var STRAY = 420; // how far the view may leave the picture, pixels: a window fits above a marker at its edge

  // The only way in which texts of the world reach the page: as text.
  function element(name, className, text) {
    var made = document.createElement(name);
    if (className)
      made.className = className;
    if (text)
      made.textContent = text;
    return made;
  }

  function latLng(x, y) {
    return L.latLng(-y, x);
  }

  function partElement(part) {
    var made = element("div", "part");
    if (part.picture) {
      var picture = element("img", "small");
      picture.alt = "";
      picture.src = part.picture;
      made.append(picture);
    }
    if (part.heading)
      made.append(element("h3", "name", part.heading));
    (part.lines || []).forEach(function (line) {
      made.append(element("p", "", line));
    });
    if (part.facts) {
      var facts = element("dl");
      part.facts.forEach(function (fact) {
        var row = element("div");
        row.append(element("dt", "", fact[0]), element("dd", "", fact[1]));
        facts.append(row);
      });
      made.append(facts);
    }
    return made;
  }

  function windowElement(place) {
    var made = element("div", "window");
    made.tabIndex = 0; // a long one is scrolled by keys
    made.append(element("h2", "name", place.name));
    if (place.zone)
      made.append(element("p", "where", place.zone));
    if (place.won)
      made.append(element("p", "won", place.won));
    place.parts.forEach(function (part) {
      made.append(partElement(part));
    });
    return made;
  }

  function boxIcon(place) {
    var box = element("span", place.green ? "box green" : "box", place.code);
    box.style.backgroundColor = place.fill;
    box.style.color = place.ink;
    return L.divIcon({className: "marker", html: box, iconSize: [BOX, BOX], iconAnchor: [BOX >> 1, BOX >> 1]});
  }

  function spriteIcon(file, anchor, label) {
    var inside = element("span", "sprite");
    if (file) {
      var picture = element("img");
      picture.alt = "";
      picture.src = "markers/" + file;
      inside.append(picture);
    }
    if (label)
      inside.append(element("span", file ? "label" : "label alone", label));
    return L.divIcon({className: "marker", html: inside, iconSize: null, iconAnchor: file ? anchor : [0, 0]});
  }

  function iconOf(place, layer) {
    if (layer === BOSSES)
      return boxIcon(place);
    if (layer === GREENS)
      return spriteIcon("picGreenMarker.png", [BOX >> 1, BOX >> 1]);
    return spriteIcon(place.sprite, place.anchor, layer === ZONES ? place.name : "");
  }

  // `opened(place)` is called when a marker's window opens.
  function RegionMap(container, opened) {
    var still = window.matchMedia("(prefers-reduced-motion: reduce)").matches;
    this.map = L.map(container, {
      crs: L.CRS.Simple, minZoom: -3, maxZoom: 2, attributionControl: false, zoomControl: false, tap: false,
      zoomAnimation: !still, fadeAnimation: !still, markerZoomAnimation: !still
    });
    L.control.zoom({zoomInTitle: Atlas.texts.zoomIn, zoomOutTitle: Atlas.texts.zoomOut}).addTo(this.map);
    container.setAttribute("role", "application");
    container.setAttribute("aria-label", Atlas.texts.map);
    this.opened = opened;
    this.shown = Atlas.layers.map(function () { return true; });
    this.wonShown = true;
    this.entries = [];
    this.ring = L.marker([0, 0], {icon: L.divIcon({className: "ring", iconSize: [40, 40]}), keyboard: false,
                                  interactive: false, zIndexOffset: -10000});
    this.listen(container);
  }

  RegionMap.prototype.listen = function (container) {
    var self = this;
    this.map.on("zoomend", function () {
      container.classList.toggle("far", self.map.getZoom() < -1);
    });
    this.map.on("popupopen", function (event) {
      var root = event.popup.getElement();
      root.setAttribute("role", "dialog");
      root.setAttribute("aria-label", event.popup.place.name);
      root.querySelector(".leaflet-popup-close-button").setAttribute("aria-label", Atlas.texts.close);
      self.opened(event.popup.place);
    });
    container.addEventListener("keydown", function (event) {
      if (event.key === "Enter" && event.target.classList.contains("marker"))
        setTimeout(function () { self.focusWindow(); });
    });
  };

  // The picture stands alone where it cannot be read; the markers are there all the same.
  RegionMap.prototype.show = function (region, places, done) {
    var self = this;
    this.clear();
    this.region = region;
    var finish = function (picture) {
      if (self.region !== region)
        return;
      var size = picture ? [picture.naturalWidth, picture.naturalHeight] : self.extent(places);
      self.lay(region, size, picture, places);
      done(Boolean(picture));
    };
    if (!region.picture)
      return finish(null);
    var picture = new Image();
    picture.onload = function () { finish(picture); };
    picture.onerror = function () { finish(null); };
    picture.alt = "";
    picture.src = "pictures/regions/" + region.key + ".jpg";
  };

  RegionMap.prototype.extent = function (places) {
    return [0, 1].map(function (axis) {
      return places.reduce(function (most, place) {
        return Math.max(most, (axis ? place.y : place.x) + STRAY);
      }, 600);
    });
  };

  RegionMap.prototype.lay = function (region, size, picture, places) {
    var bounds = L.latLngBounds(latLng(0, 0), latLng(size[0], size[1]));
    this.bounds = bounds;
    if (picture)
      this.picture = L.imageOverlay(picture, bounds).addTo(this.map);
    this.map.setMaxBounds(L.latLngBounds(latLng(-STRAY, -STRAY), latLng(size[0] + STRAY, size[1] + STRAY)));
    this.map.setView(bounds.getCenter(), Math.min(0, this.map.getBoundsZoom(bounds, true)), {animate: false});
    var self = this;
    this.entries = [];
    places.forEach(function (place) {
      self.addMarker(place, place.layer);
      if (place.green)
        self.addMarker(place, GREENS);
    });
    this.refresh();
  };

  RegionMap.prototype.addMarker = function (place, layer) {
    var marker = L.marker(latLng(place.x, place.y), {
      icon: iconOf(place, layer), title: layer === ZONES ? "" : place.name, riseOnHover: true,
      zIndexOffset: layer === ZONES ? -5000 : 0
    });
    var popup = L.popup({maxWidth: 300, minWidth: 180, maxHeight: this.windowHeight(), autoPanPadding: [12, 12]});
    popup.place = place;
    popup.setContent(function () { return windowElement(place); });
    marker.bindPopup(popup);
    marker.on("add", function () {
      var icon = marker.getElement();
      icon.classList.toggle("won", Boolean(place.won));
      icon.setAttribute("role", "button");
      icon.setAttribute("aria-label", Atlas.layers[layer] + ": " + place.name);
    });
    this.entries.push({place: place, layer: layer, marker: marker});
  };

  // A window fits on the map, also on a phone's.
  RegionMap.prototype.windowHeight = function () {
    return Math.max(120, Math.min(400, this.map.getSize().y - 130));
  };

  // A boss's green item has a marker of its own only while the boss has none.
  RegionMap.prototype.visible = function (entry) {
    if (entry.place.won && !this.wonShown)
      return false;
    if (entry.layer === GREENS && this.shown[BOSSES])
      return false;
    return this.shown[entry.layer];
  };

  RegionMap.prototype.refresh = function () {
    this.map.getContainer().classList.toggle("greens", this.shown[GREENS]);
    this.entries.forEach(function (entry) {
      if (this.visible(entry) !== this.map.hasLayer(entry.marker))
        this.map[this.visible(entry) ? "addLayer" : "removeLayer"](entry.marker);
    }, this);
  };

  RegionMap.prototype.setLayer = function (layer, shown) {
    this.shown[layer] = shown;
    this.refresh();
  };

  RegionMap.prototype.setWonShown = function (shown) {
    this.wonShown = shown;
    this.refresh();
  };

  // Goes to a place of the region, at its natural size unless the reader is nearer, and opens its window when a
  // marker stands there.
  RegionMap.prototype.goTo = function (x, y) {
    // Below the middle, so that the window above it is seen whole.
    var below = Math.min(this.windowHeight() / 2, this.map.getSize().y / 2 - 60);
    var zoom = Math.max(0, this.map.getZoom());
    this.map.setView(latLng(x, y - below / Math.pow(2, zoom)), zoom, {animate: false});
    this.ring.setLatLng(latLng(x, y)).addTo(this.map);
    var here = this.entries.filter(function (entry) {
      return entry.place.x === x && entry.place.y === y && this.map.hasLayer(entry.marker);
    }, this).pop();
    if (here)
      here.marker.openPopup();
    else
      this.map.closePopup();
  };

  RegionMap.prototype.focusWindow = function () {
    var inside = this.map.getContainer().querySelector(".leaflet-popup .window");
    if (inside)
      inside.focus({preventScroll: true});
  };

  RegionMap.prototype.close = function () {
    var popup = this.map._popup;
    if (!popup || !this.map.hasLayer(popup))
      return;
    var icon = popup._source && popup._source.getElement();
    this.map.closePopup();
    if (icon)
      icon.focus({preventScroll: true});
  };

  RegionMap.prototype.clear = function () {
    this.map.closePopup();
    this.ring.remove();
    this.entries.forEach(function (entry) { entry.marker.remove(); });
    this.entries = [];
    if (this.picture)
      this.picture.remove();
    this.picture = null;
  };

  RegionMap.element = element;
  return RegionMap;
})();
