// The start page: reads the address, and ties map, lists, layers and search together.
//
// An address is index.html#region=C.R or index.html#region=C.R&at=X,Y: the numbers of campaign and region in the
// data files, and pixels of the region's picture. Addresses stay true as long as the world's numbers do.
"use strict";

(function () {
  var element = RegionMap.element;
  var byId = function (id) { return document.getElementById(id); };
  var map, search, current;

  function addressOf(region, x, y) {
    return "#region=" + region.key + (x === undefined ? "" : "&at=" + x + "," + y);
  }

  function readAddress() {
    var match = /^#region=(\d+\.\d+)(?:&at=(-?\d+),(-?\d+))?$/.exec(location.hash);
    if (!match)
      return null;
    var place = {key: match[1]};
    if (match[2] !== undefined) {
      place.x = Number(match[2]);
      place.y = Number(match[3]);
    }
    return place;
  }

  function say(text) {
    byId("message").textContent = text;
  }

  // Data come as scripts: a page from the disk may load nothing else.
  function load(file, done) {
    var script = element("script");
    script.src = "data/" + file;
    script.onload = done;
    script.onerror = done;
    document.head.append(script);
  }

  function withPlaces(region, done) {
    if (Atlas.places[region.key])
      return done();
    load(region.key + ".js", done);
  }

  function go() {
    var place = readAddress() || (current ? {key: current.key} : Atlas.regions.length ? {key: Atlas.regions[0].key} : null);
    var region = place && Atlas.regions.find(function (one) { return one.key === place.key; });
    if (!region)
      return say(Atlas.regions.length ? Atlas.texts.noSuchPlace : Atlas.texts.nothingHere);
    if (region === current)
      return goTo(place);
    current = region;
    byId("region").value = region.key;
    withPlaces(region, function () {
      var places = Atlas.places[region.key] || [];
      if (current !== region)
        return;
      fillHere(region, places);
      countLayers(places);
      map.show(region, places, function (pictured) {
        say(pictured ? "" : Atlas.texts.noPicture);
        document.title = region.name + " - Orvinel";
        goTo(place);
        document.documentElement.dataset.ready = region.key;
      });
    });
  }

  function goTo(place) {
    if (place.x === undefined || !map.bounds)
      return;
    var there = (Atlas.places[place.key] || []).find(function (one) { return one.x === place.x && one.y === place.y; });
    if (there)
      showLayer(there.layer);
    if (there && there.won)
      showWon();
    map.goTo(place.x, place.y);
  }

  // Whoever asks for a place wants to see it, also when its layer was switched off.
  function showLayer(layer) {
    var box = byId("layer" + layer);
    if (box && !box.checked)
      box.click();
  }

  function showWon() {
    var box = byId("won");
    if (box && !box.checked)
      box.click();
  }

  function subject(place) {
    var skills = place.parts.filter(function (part) { return part.kind < 3 && place.layer === 1; });
    return [place.zone].concat(skills.map(function (part) { return part.heading; })).filter(Boolean).join(" · ");
  }

  function listItem(region, place) {
    var item = element("li", place.won ? "won" : "");
    var link = element("a", "result");
    link.href = addressOf(region, place.x, place.y);
    link.append(element("span", "name", place.name));
    if (subject(place))
      link.append(element("span", "detail name", subject(place)));
    item.append(link);
    return item;
  }

  function fillHere(region, places) {
    var open = Array.from(byId("here").querySelectorAll("details[open]")).map(function (group) { return group.dataset.layer; });
    byId("here").replaceChildren();
    Atlas.layers.forEach(function (name, layer) {
      var here = places.filter(function (place) { return layer === 2 ? place.green : place.layer === layer; });
      if (!here.length)
        return;
      var group = element("details");
      group.dataset.layer = layer;
      group.open = open.indexOf(String(layer)) >= 0; // as in the region before
      var heading = element("summary", "", name + " ");
      heading.append(element("span", "count", String(here.length)));
      var list = element("ul");
      here.forEach(function (place) { list.append(listItem(region, place)); });
      group.append(heading, list);
      byId("here").append(group);
    });
    if (!byId("here").children.length)
      byId("here").append(element("p", "", Atlas.texts.nothingHere));
  }

  function countLayers(places) {
    Atlas.layers.forEach(function (name, layer) {
      var count = places.filter(function (place) { return layer === 2 ? place.green : place.layer === layer; }).length;
      byId("layer" + layer).parentNode.hidden = count === 0;
    });
    if (byId("won"))
      byId("won").parentNode.hidden = !places.some(function (place) { return place.won; });
  }

  function addSwitch(id, text, changed) {
    var label = element("label");
    var box = element("input");
    box.type = "checkbox";
    box.checked = true;
    box.id = id;
    box.addEventListener("change", function () { changed(box.checked); });
    label.append(box, element("span", "", text));
    byId("layers").append(label);
  }

  function fillControls() {
    var group, campaign;
    Atlas.regions.forEach(function (region) {
      if (!group || campaign !== region.campaign) {
        campaign = region.campaign;
        group = element("optgroup");
        group.label = campaign;
        byId("region").append(group);
      }
      var option = element("option", "", region.name);
      option.value = region.key;
      group.append(option);
    });
    Atlas.layers.forEach(function (name, layer) {
      addSwitch("layer" + layer, name, function (shown) { map.setLayer(layer, shown); });
    });
    addSwitch("won", Atlas.texts.won, function (shown) { map.setWonShown(shown); });
    byId("region").addEventListener("change", function () { location.hash = "#region=" + byId("region").value; });
  }

  function runSearch() {
    if (!Atlas.search)
      return;
    search = search || new Search(Atlas.search);
    search.show(byId("query").value, byId("results"));
  }

  function closeSearch() {
    byId("results").hidden = true;
  }

  // Up and down walk from the field through the results.
  function searchKey(event) {
    if (event.key === "Escape") {
      byId("query").focus();
      return closeSearch();
    }
    if (event.key !== "ArrowDown" && event.key !== "ArrowUp")
      return;
    var stops = [byId("query")].concat(Array.from(byId("results").querySelectorAll("a")));
    var next = stops.indexOf(document.activeElement) + (event.key === "ArrowDown" ? 1 : -1);
    if (stops[next])
      stops[next].focus();
    event.preventDefault();
  }

  function fillSearch() {
    var asked = false;
    byId("query").addEventListener("focus", function () {
      if (!asked)
        load("search.js", runSearch);
      asked = true;
      runSearch();
    });
    byId("query").addEventListener("input", runSearch);
    byId("search").addEventListener("submit", function (event) {
      var first = byId("results").querySelector("a");
      event.preventDefault();
      if (first && !byId("results").hidden)
        first.click();
    });
    document.querySelector("header").addEventListener("keydown", searchKey);
    document.addEventListener("click", function (event) {
      if (!event.target.closest("header"))
        closeSearch();
    });
  }

  // A link to the address where one is already goes there all the same.
  function followLink(event) {
    var link = event.target.closest("a[href^='#region=']");
    if (!link)
      return;
    event.preventDefault();
    closeSearch();
    if (location.hash === link.getAttribute("href"))
      go();
    else
      location.hash = link.getAttribute("href");
    byId("mappart").scrollIntoView({block: "nearest"});
    if (event.detail === 0) // from the keyboard: read on in the window
      whenShown(function () { map.focusWindow(); });
  }

  function whenShown(then) {
    setTimeout(then, 150);
  }

  // Whoever has closed the search closes the map's window with the next key.
  function escape(event) {
    if (event.key === "Escape" && !event.target.closest("header"))
      map.close();
  }

  function remember(place) {
    history.replaceState(null, "", addressOf(current, place.x, place.y));
  }

  document.documentElement.classList.add("script");
  map = new RegionMap(byId("map"), remember);
  fillControls();
  fillSearch();
  document.addEventListener("click", followLink);
  document.addEventListener("keydown", escape);
  window.addEventListener("hashchange", go);
  go();
})();
