// The primitives of page.h and the listeners of the page. The program decides what a press or a key
// does and answers whether the browser still takes its default action.
mergeInto(LibraryManager.library, {
  $Page: {
    // By number. The first element contains the windows.
    elements: [],
    timers: {},
    // The text that the current event puts on the clipboard.
    copied: null,
    inCopy: false,
    // By event number.
    hasPlace: { 1: true, 14: true, 16: true, 17: true },
    // Whether an element contains an incomplete composition.
    composes: false,
    // The element on which the mouse was pressed.
    pressed: null,
    // Whether that press and its click are ignored.
    ignored: false,
    // Whether the user has pressed a button or a key in the page.
    used: false,
    // The element that gets the focus once the page has it.
    waiting: null,
    // Whether the program receives reports.
    owned: 0,
    // A text is the address of its first byte and its length. Short texts are nearly all ASCII, and
    // reading them takes less time than calling a decoder.
    read: function (at, length) {
      var text = '';
      if (length < 40) {
        for (var end = at + length; at < end && HEAPU8[at] < 128; ++at) {
          text += String.fromCharCode(HEAPU8[at]);
        }
        if (at === end) return text;
        at = end - length;
      }
      if (!Page.decoder) Page.decoder = new TextDecoder('utf-8', { ignoreBOM: true });
      return Page.decoder.decode(HEAPU8.subarray(at, at + length));
    },
    // Allocates a text, which the program then owns.
    give: function (text) {
      if (!text) return { at: 0, length: 0 };
      if (!Page.encoder) Page.encoder = new TextEncoder();
      var bytes = Page.encoder.encode(text);
      var at = _malloc(bytes.length + 1);
      if (!at) throw new Error('The memory is used up.');
      HEAPU8.set(bytes, at);
      return { at: at, length: bytes.length };
    },
    // Tells the listeners from the target outwards until one has handled the event. A press has a
    // position in each of them.
    report: function (cause, event, x, y, text, data) {
      var held = (cause.shiftKey ? 1 : 0) + (cause.ctrlKey ? 2 : 0) + (cause.altKey ? 4 : 0) +
        (cause.metaKey ? 8 : 0) + (cause.repeat ? 16 : 0);
      var answer = 0;
      for (var element = cause.target; element && !answer; element = element.parentNode) {
        if (!element.listens) continue;
        if (Page.hasPlace[event]) {
          var at = cause.touches ? cause.touches[0] : cause;
          var box = element.getBoundingClientRect();
          x = (at.clientX - box.left) / box.width;
          y = (at.clientY - box.top) / box.height;
        }
        answer = Page.tell(element.vamo, event, x, y, held, text, data);
      }
      if (!answer) answer = Page.tell(-1, event, x, y, held, text, data);
      if (answer === 2) cause.preventDefault();
      return answer;
    },
    tell: function (number, event, x, y, held, text, data) {
      // The program receives nothing before it is compiled and after it has ended.
      if (!Page.owned) return 0;
      return Page.enter(function () {
        var first = Page.give(text);
        var second = Page.give(data);
        return _page_report(number, event, x, y, held, first.at, first.length, second.at,
          second.length);
      });
    },
    // An error in the program ends it. Other errors on the page are not the program's.
    enter: function (entry) {
      try {
        return entry();
      } catch (error) {
        Page.owned = 0;
        sayInstead('Vamo has stopped because of an error. Load this page again to start it anew.');
        throw error;
      }
    },
    measure: function (text, font) {
      if (!Page.canvas) Page.canvas = document.createElement('canvas').getContext('2d');
      if (font !== Page.font) {
        Page.canvas.font = font;
        Page.font = font;
      }
      return Page.canvas.measureText(text).width;
    },
    copy: function (event, number) {
      if (Page.copied === null) {
        Page.inCopy = true;
        Page.report(event, number, 0, 0);
        Page.inCopy = false;
      }
      if (Page.copied !== null) {
        event.clipboardData.setData('text/plain', Page.copied);
        event.preventDefault();
      }
      Page.copied = null;
    },
    begin: function () {
      Page.elements[0] = document.getElementById('vamo');
      // A saved copy of the page still has the windows that were open.
      Page.elements[0].textContent = '';
      // For the style sheet.
      if (window.parent !== window) document.documentElement.className = 'framed';
      Page.probe = document.getElementById('probe');
      Page.listen();
    },
    listen: function () {
      var listeners = {
        keydown: function (event) {
          // A composed text is reported when it is complete. Safari marks the last key of a
          // composition only by its key code, 229.
          var composes = event.isComposing || event.keyCode === 229 || event.key === 'Unidentified';
          if (composes && typeof event.target.selectionStart === 'number') return;
          Page.report(event, 0, 0, 0, event.key, event.code);
        },
        mousedown: function (event) {
          Page.pressed = null;
          Page.ignored = Page.report(event, 13, event.detail > 1 ? 1 : 0, 0) === 2;
          if (Page.ignored) return;
          if (event.button !== 0) return Page.report(event, 14, 0, 0);
          Page.pressed = event.target;
          Page.report(event, 1, 0, 0);
        },
        click: function (event) {
          var ends = Page.pressed === event.target;
          Page.pressed = null;
          if (Page.ignored) return event.preventDefault();
          Page.report(event, 2, ends ? 1 : 0, 0);
        },
        focusin: function (event) { Page.report(event, 3, 0, 0); },
        input: function (event) {
          if (event.isComposing) return;
          var number = event.target.type === 'range';
          Page.report(event, 4, number ? event.target.valueAsNumber : 0, 0,
            number ? '' : event.target.value);
        },
        beforeinput: function (event) {
          var carried = event.dataTransfer;
          var ranges = event.getTargetRanges();
          Page.report(event, 5, ranges.length ? ranges[0].startOffset : -1,
            ranges.length ? ranges[0].endOffset : -1, event.inputType, event.data || (carried ? carried.getData('text/plain') : ''));
        },
        compositionstart: function (event) {
          Page.composes = true;
          Page.report(event, 11, 0, 0);
        },
        compositionend: function (event) {
          Page.composes = false;
          Page.report(event, 6, 0, 0, event.data);
        },
        touchstart: function (event) {
          if (event.target.type === 'range') Page.report(event, 16, 0, 0);
        },
        touchmove: function (event) {
          if (event.target.type === 'range') Page.report(event, 17, 0, 0);
        },
        touchend: function (event) {
          if (event.target.type === 'range') Page.report(event, 18, 0, 0);
        },
        touchcancel: function (event) {
          if (event.target.type === 'range') Page.report(event, 18, 0, 0);
        },
        wheel: function (event) {
          Page.report(event, 7, -event.wheelDeltaX / 120, event.wheelDeltaY / 120);
        },
        copy: function (event) { Page.copy(event, 8); },
        cut: function (event) { Page.copy(event, 9); },
        paste: function (event) {
          Page.report(event, 10, 0, 0, event.clipboardData.getData('text/plain'));
        },
        // Without a selection there would be no event, although the program may have something to
        // copy.
        beforecopy: function (event) { event.preventDefault(); },
        beforecut: function (event) { event.preventDefault(); },
        beforepaste: function (event) { event.preventDefault(); }
      };
      for (var name in listeners) {
        // Touches are passive, so that the page scrolls at once.
        document.addEventListener(name, listeners[name], { passive: name.indexOf('touch') === 0 });
      }
      // A press without the default action would leave the focus in the page around a frame.
      document.addEventListener('mousedown', function () {
        Page.used = true;
        if (!document.hasFocus()) window.focus();
      }, true);
      document.addEventListener('keydown', function () { Page.used = true; }, true);
      function tellRoom() { Page.tell(-1, 15, 0, 0, 0, '', ''); }
      window.addEventListener('resize', tellRoom);
      window.addEventListener('hashchange', function () { _page_tell_link(); });
      if (window.ResizeObserver) new ResizeObserver(tellRoom).observe(Page.probe);
      // An on-screen keyboard reduces the visible part of the page. So does zooming in, but the
      // layout does not follow that.
      if (window.visualViewport) {
        visualViewport.addEventListener('resize', function () {
          document.documentElement.style.setProperty('--shown',
            visualViewport.height * visualViewport.scale + 'px');
        });
      }
      window.addEventListener('focus', function () {
        var element = Page.waiting;
        Page.waiting = null;
        if (element && window.parent === window && document.activeElement === document.body) {
          element.focus({ preventScroll: true });
        }
      });
      // By mouse, finger or key, but not for sliders, which move often. In some browsers only the
      // element receives this event.
      document.addEventListener('selectionchange', function () {
        if (!Page.composes && document.activeElement && document.activeElement.type !== 'range') {
          Page.tell(-1, 12, 0, 0, 0, '', '');
        }
      }, true);
    }
  },
  $Page__postset: 'Page.begin();',

  page_create__deps: ['$Page', 'malloc'],
  page_create: function (parent, tag, length, listens) {
    var name = Page.read(tag, length);
    // An SVG picture and its contents have another namespace than the page.
    var element = document.createElementNS(name === 'svg' ? 'http://www.w3.org/2000/svg' :
      Page.elements[parent].namespaceURI, name);
    element.listens = listens;
    element.vamo = Page.elements.length;
    element.id = 'vamo' + element.vamo;
    Page.elements.push(element);
    Page.elements[parent].appendChild(element);
    document.getElementById('waiting').hidden = true;
    return element.vamo;
  },
  page_remove: function (number) {
    Page.elements[number].remove();
    delete Page.elements[number];
  },
  page_set_attribute: function (number, name, nameLength, value, valueLength) {
    Page.elements[number].setAttribute(Page.read(name, nameLength), Page.read(value, valueLength));
  },
  page_remove_attribute: function (number, name, length) {
    Page.elements[number].removeAttribute(Page.read(name, length));
  },
  page_set_style: function (number, name, nameLength, value, valueLength) {
    Page.elements[number].style.setProperty(Page.read(name, nameLength),
      Page.read(value, valueLength));
  },
  page_set_text: function (number, text, length) {
    var element = Page.elements[number];
    var first = element.firstChild;
    // Changing a text node is cheaper than replacing it. A translator may have put something around
    // or beside it.
    if (length && first && first.nodeType === 3 && !first.nextSibling) {
      first.data = Page.read(text, length);
    } else {
      element.textContent = Page.read(text, length);
    }
  },
  page_set_value: function (number, text, length) {
    Page.elements[number].value = Page.read(text, length);
  },
  page_select: function (number, anchor, caret) {
    Page.elements[number].setSelectionRange(Math.min(anchor, caret), Math.max(anchor, caret),
      caret < anchor ? 'backward' : 'forward');
  },
  page_anchor: function (number) {
    var element = Page.elements[number];
    return element.selectionDirection === 'backward' ? element.selectionEnd :
      element.selectionStart;
  },
  page_caret: function (number) {
    var element = Page.elements[number];
    return element.selectionDirection === 'backward' ? element.selectionStart :
      element.selectionEnd;
  },
  // Takes the focus neither from another page nor from the page that has this one in a frame.
  page_focus: function (number) {
    var element = Page.elements[number];
    if (document.hasFocus() && (Page.used || window.parent === window)) {
      element.focus({ preventScroll: true });
    } else {
      Page.waiting = element;
    }
  },
  page_come_into_view: function (number) {
    // This also scrolls a page that has this one in a frame.
    if (!Page.used && window.parent !== window) return;
    Page.elements[number].scrollIntoView({ block: 'nearest', inline: 'nearest' });
  },
  page_has_focus: function (number) {
    return document.activeElement === Page.elements[number] && document.hasFocus();
  },
  page_bring_to_end: function (number) {
    Page.elements[number].parentNode.appendChild(Page.elements[number]);
  },
  page_move: function (number, parent) {
    Page.elements[parent].appendChild(Page.elements[number]);
  },
  page_text_enlargement: function () {
    var asked = Page.measure(Page.probe.textContent, '12px system-ui,sans-serif');
    return Page.probe.getBoundingClientRect().width / asked;
  },
  page_tell_link: function () { Page.tell(-1, 19, 0, 0, 0, location.hash, ''); },
  page_width: function () { return document.documentElement.clientWidth; },
  page_element_width: function (number) { return Page.elements[number].offsetWidth; },
  page_element_height: function (number) { return Page.elements[number].offsetHeight; },
  page_flash: function (number) {
    if (matchMedia('(prefers-reduced-motion: reduce)').matches) return;
    Page.elements[number].animate([{ backgroundColor: '#ffc060' }, { backgroundColor: '#ffc060' }],
      150);
  },
  page_set_owned: function (owned) { Page.owned = owned; },
  page_post: function () { setTimeout(function () { Page.enter(_page_run_posted); }, 0); },
  page_start_timer: function (timer, period) {
    function wait(left) {
      // A wait that does not fit 31 bits would end at once.
      var part = Math.min(left, 0x7fffffff);
      Page.timers[timer] = setTimeout(function () {
        if (part < left) return wait(left - part);
        wait(period);
        Page.enter(function () { _page_fire(timer); });
      }, part);
    }
    wait(period);
  },
  page_stop_timer: function (timer) {
    clearTimeout(Page.timers[timer]);
    delete Page.timers[timer];
  },
  page_text_width: function (text, length, font, fontLength) {
    return Page.measure(Page.read(text, length), Page.read(font, fontLength));
  },
  // Only a copy event can write to the clipboard in every browser, so this makes one if none is
  // running.
  page_copy: function (text, length) {
    Page.copied = Page.read(text, length);
    if (Page.inCopy || document.execCommand('copy')) return 1;
    Page.copied = null;
    return 0;
  },
  page_read_clipboard: function () {
    function give(allowed, text) {
      Page.enter(function () {
        var given = Page.give(text);
        _page_give_clipboard(allowed, given.at, given.length);
      });
    }
    if (!navigator.clipboard || !navigator.clipboard.readText) {
      setTimeout(function () { give(0, ''); }, 0);
    } else {
      navigator.clipboard.readText().then(function (text) { give(1, text); },
        function () { give(0, ''); });
    }
  },
  page_sound: function () {
    try {
      if (!Page.audio) Page.audio = new AudioContext();
    } catch (error) {
      return;
    }
    // A phone suspends the context.
    if (Page.audio.state !== 'running') Page.audio.resume().catch(function () {});
    var tone = Page.audio.createOscillator();
    var strength = Page.audio.createGain();
    var start = Page.audio.currentTime;
    tone.frequency.value = 800;
    // Without a ramp the tone would click.
    strength.gain.setValueAtTime(0, start);
    strength.gain.linearRampToValueAtTime(0.15, start + 0.01);
    strength.gain.setValueAtTime(0.15, start + 0.08);
    strength.gain.linearRampToValueAtTime(0, start + 0.1);
    tone.connect(strength);
    strength.connect(Page.audio.destination);
    tone.start();
    tone.stop(start + 0.1);
  },
  page_has_picture: function (name, length) {
    return document.getElementById(Page.read(name, length)) !== null;
  },
  page_show_picture: function (number, name, length) {
    Page.elements[number].src = document.getElementById(Page.read(name, length)).src;
  },
  page_has_coarse_pointer: function () { return matchMedia('(pointer: coarse)').matches; },
  page_is_mac: function () { return navigator.platform.indexOf('Mac') === 0; }
});
