/*
 * Tamo's sales report charts, drawn with Chart.js (above). The report page gives its figures as
 * data attributes of the element "report" and the chart labels as data-labels of each canvas,
 * separated by "|". Tamo copies this file to "charts.js" in its data folder once and reads it
 * from there, so it may be replaced with other chart code.
 */
(function () {
  'use strict';

  function figure(report, name) {
    var value = Number(report.getAttribute('data-' + name));
    return isFinite(value) ? value : 0;
  }

  function labels(canvas) {
    return (canvas.getAttribute('data-labels') || '').split('|');
  }

  function colour(name) {
    return getComputedStyle(document.documentElement).getPropertyValue('--' + name).trim();
  }

  window.tamoReportCharts = function (doc) {
    var report = doc.getElementById('report');
    if (!window.Chart || !report) {
      return;
    }
    var body = getComputedStyle(doc.body);
    Chart.defaults.font.family = body.fontFamily;
    Chart.defaults.font.size = 11;
    Chart.defaults.color = colour('muted');
    // Drawn once, at once, sharp enough for paper: the page is printed as soon as it has loaded.
    var common = { responsive: false, animation: false, devicePixelRatio: 3, events: [] };

    var created = figure(report, 'created');
    var sent = figure(report, 'sent');
    var due = figure(report, 'due');
    var paid = figure(report, 'paid');
    var partial = Math.max(0, figure(report, 'invoices') - sent - due - paid);
    var statusCanvas = doc.getElementById('statusChart');
    if (statusCanvas) {
      new Chart(statusCanvas, {
        type: 'doughnut',
        data: {
          labels: labels(statusCanvas),
          datasets: [{
            data: [sent, due, paid, partial, created],
            backgroundColor: [colour('sent'), colour('due'), colour('paid'), colour('partial'),
                              colour('created')],
            borderColor: '#ffffff',
            borderWidth: 2
          }]
        },
        options: Object.assign({}, common, {
          cutout: '62%',
          layout: { padding: 4 },
          plugins: {
            legend: { position: 'right', labels: { boxWidth: 9, boxHeight: 9, padding: 9 } },
            tooltip: { enabled: false }
          }
        })
      });
    }

    var moneyCanvas = doc.getElementById('moneyChart');
    if (moneyCanvas) {
      var grouping = new Intl.NumberFormat(undefined, { maximumFractionDigits: 0 });
      new Chart(moneyCanvas, {
        type: 'bar',
        data: {
          labels: labels(moneyCanvas),
          datasets: [{
            data: [figure(report, 'total'), figure(report, 'paid-total'),
                   figure(report, 'due-total'), figure(report, 'average')],
            backgroundColor: [colour('total'), colour('paid'), colour('due'), colour('sent')],
            borderRadius: 3,
            maxBarThickness: 38
          }]
        },
        options: Object.assign({}, common, {
          layout: { padding: { top: 4, right: 4 } },
          plugins: { legend: { display: false }, tooltip: { enabled: false } },
          scales: {
            x: { grid: { display: false } },
            y: {
              beginAtZero: true,
              grid: { color: colour('line') },
              border: { display: false },
              ticks: { maxTicksLimit: 6, callback: function (v) { return grouping.format(v); } }
            }
          }
        })
      });
    }
  };
})();
