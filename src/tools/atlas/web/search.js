// The search: every word that is typed must occur in a row's texts; letter case and accents do not matter.
"use strict";

var Search = (function () {
  var KIND = 0, NAME = 1, DETAIL = 2, REGION = 3, X = 4, Y = 5, ZONE = 6, WORDS = 7; // of a row
  var MOST = 8; // results of one kind

  function fold(text) {
    return text.normalize("NFD").replace(/[\u0300-\u036f]/g, "").toLowerCase();
  }

  // `rows` as in data/search.js.
  function Search(rows) {
    this.rows = rows;
    this.names = rows.map(function (row) { return fold(row[NAME]); });
    this.texts = rows.map(function (row, i) {
      var region = Atlas.regions[row[REGION]];
      return this.names[i] + "\n" + fold(row[DETAIL] + "\n" + row[ZONE] + "\n" + row[WORDS] +
                                         "\n" + (region ? region.name + "\n" + region.campaign : ""));
    }, this);
  }

  // 0 is best: the name begins with the first word, a word of it does, it occurs in the name, elsewhere.
  Search.prototype.rank = function (i, words) {
    var at = this.names[i].indexOf(words[0]);
    if (at < 0)
      return 3;
    return at === 0 ? 0 : this.names[i].indexOf(" " + words[0]) >= 0 ? 1 : 2;
  };

  // By kind: {count, rows}, the best rows first.
  Search.prototype.find = function (query) {
    var words = fold(query).split(/\s+/).filter(Boolean);
    var kinds = Atlas.kinds.map(function () { return {count: 0, ranks: [[], [], [], []]}; });
    if (words.length)
      this.texts.forEach(function (text, i) {
        if (!words.every(function (word) { return text.indexOf(word) >= 0; }))
          return;
        var kind = kinds[this.rows[i][KIND]];
        var rank = kind.ranks[this.rank(i, words)];
        ++kind.count;
        if (rank.length < MOST)
          rank.push(this.rows[i]);
      }, this);
    return kinds.map(function (kind) {
      return {count: kind.count, rows: [].concat.apply([], kind.ranks).slice(0, MOST)};
    });
  };

  function resultElement(row) {
    var item = RegionMap.element("li");
    var region = Atlas.regions[row[REGION]];
    var line = RegionMap.element(region ? "a" : "span", "result");
    if (region)
      line.href = "#region=" + region.key + "&at=" + row[X] + "," + row[Y];
    line.append(RegionMap.element("span", "name", row[NAME]));
    var parts = [row[DETAIL], row[ZONE], region ? region.name : Atlas.texts.placeUnknown];
    line.append(RegionMap.element("span", "detail name", parts.filter(Boolean).join(" · ")));
    item.append(line);
    return item;
  }

  function groupElement(found, kind) {
    var group = RegionMap.element("section");
    var heading = RegionMap.element("h2", "", Atlas.kinds[kind] + " ");
    heading.append(RegionMap.element("span", "count", String(found.count)));
    var list = RegionMap.element("ul");
    found.rows.forEach(function (row) { list.append(resultElement(row)); });
    if (found.count > found.rows.length)
      list.append(RegionMap.element("li", "more",
                                    Atlas.texts.more.replace("%1", function () { return found.count - found.rows.length; })));
    group.append(heading, list);
    return group;
  }

  // Shows what the search finds for `query` in `box`; nothing for a query without a word.
  Search.prototype.show = function (query, box) {
    var found = this.find(query);
    var total = found.reduce(function (sum, kind) { return sum + kind.count; }, 0);
    box.replaceChildren();
    box.hidden = !query.trim();
    if (box.hidden)
      return;
    var status = total ? Atlas.texts.found.replace("%1", function () { return total; }) : Atlas.texts.nothingFound;
    var line = RegionMap.element("p", "status", status);
    line.setAttribute("role", "status");
    box.append(line);
    found.forEach(function (kind, i) {
      if (kind.count)
        box.append(groupElement(kind, i));
    });
  };

  Search.fold = fold;
  return Search;
})();
