// What stands ahead of the proof in each LaTeX document: the look of a proof, in macros.
#pragma once

namespace tessaryn {

// The body sets \blockindent and \numberwidth, then has only \proofcaption, \prooftext and
// \proofline. Each of the last two sets a paragraph aside and hands it out line by line, so that a
// page can end behind any of them and the bars of the blocks go on on the next.
inline constexpr const char* LaTeXPreamble = R"tex(% A proof from Tessaryn, for pdflatex.
\documentclass[11pt,a4paper]{article}
\usepackage[margin=25mm]{geometry}
\usepackage{amssymb}
\makeatletter
\ifdefined\Umathcode\else % these engines know all of Unicode
  \IfFileExists{lmodern.sty}{\usepackage[T1]{fontenc}\usepackage{lmodern}}{}
  % What no font has is written as its number or name.
  \def\unknownsign#1:#2\relax{%
    \expandafter\UTFviii@hexcodepoint\expandafter{\the\numexpr\decode@UTFviii#2\relax}}
  \def\UTFviii@undefined@err#1{[\expandafter\unknownsign\string#1\relax]}
  \def\TextSymbolUnavailable#1{[\expandafter\@gobble\string#1]}
  \def\mathsign#1#2{\DeclareUnicodeCharacter{#1}{\ensuremath{#2}}}
  \mathsign{2200}{\forall}\mathsign{2203}{\exists}\mathsign{2204}{\nexists}
  \mathsign{2208}{\in}\mathsign{2209}{\notin}\mathsign{220B}{\ni}\mathsign{2205}{\varnothing}
  \mathsign{2227}{\wedge}\mathsign{2228}{\vee}\mathsign{00AC}{\lnot}\mathsign{21D2}{\Rightarrow}
  \mathsign{21D4}{\Leftrightarrow}\mathsign{21D0}{\Leftarrow}\mathsign{2192}{\rightarrow}
  \mathsign{2190}{\leftarrow}\mathsign{2194}{\leftrightarrow}\mathsign{21A6}{\mapsto}
  \mathsign{2282}{\subset}\mathsign{2286}{\subseteq}\mathsign{2283}{\supset}
  \mathsign{2287}{\supseteq}\mathsign{2284}{\not\subset}\mathsign{2288}{\nsubseteq}
  \mathsign{2229}{\cap}\mathsign{222A}{\cup}\mathsign{2216}{\setminus}\mathsign{00D7}{\times}
  \mathsign{2260}{\neq}\mathsign{2264}{\leq}\mathsign{2265}{\geq}\mathsign{2261}{\equiv}
  \mathsign{2248}{\approx}\mathsign{221E}{\infty}\mathsign{2211}{\sum}\mathsign{220F}{\prod}
  \mathsign{2212}{-}\mathsign{00B7}{\cdot}\mathsign{2218}{\circ}\mathsign{2032}{'}
  \mathsign{22A2}{\vdash}\mathsign{22A8}{\models}\mathsign{22A4}{\top}\mathsign{22A5}{\bot}
  \mathsign{25A1}{\square}\mathsign{25A0}{\blacksquare}\mathsign{25B6}{\blacktriangleright}
  \mathsign{2115}{\mathbb{N}}\mathsign{2124}{\mathbb{Z}}\mathsign{211A}{\mathbb{Q}}
  \mathsign{211D}{\mathbb{R}}\mathsign{2102}{\mathbb{C}}
  \mathsign{03B1}{\alpha}\mathsign{03B2}{\beta}\mathsign{03B3}{\gamma}\mathsign{03B4}{\delta}
  \mathsign{03B5}{\varepsilon}\mathsign{03B6}{\zeta}\mathsign{03B7}{\eta}\mathsign{03B8}{\theta}
  \mathsign{03B9}{\iota}\mathsign{03BA}{\kappa}\mathsign{03BB}{\lambda}\mathsign{03BC}{\mu}
  \mathsign{03BD}{\nu}\mathsign{03BE}{\xi}\mathsign{03C0}{\pi}\mathsign{03C1}{\rho}
  \mathsign{03C3}{\sigma}\mathsign{03C4}{\tau}\mathsign{03C5}{\upsilon}\mathsign{03C6}{\varphi}
  \mathsign{03C7}{\chi}\mathsign{03C8}{\psi}\mathsign{03C9}{\omega}\mathsign{0393}{\Gamma}
  \mathsign{0394}{\Delta}\mathsign{0398}{\Theta}\mathsign{039B}{\Lambda}\mathsign{039E}{\Xi}
  \mathsign{03A0}{\Pi}\mathsign{03A3}{\Sigma}\mathsign{03A6}{\Phi}\mathsign{03A8}{\Psi}
  \mathsign{03A9}{\Omega}
\fi
% Formulas. A line ends ahead of a connective if it can, else at a lesser place; \bk marks such.
\newcommand\bk{\penalty900 }
\newcommand\connective[1]{\penalty100\mathrel{#1}\nobreak}
\newcommand\OR{\connective{\vee}}
\newcommand\AND{\connective{\wedge}}
\newcommand\IMPLIES{\connective{\Rightarrow}}
\newcommand\IFF{\connective{\Leftrightarrow}}
\newcommand\ALL[1]{\forall #1\mathpunct{:}\bk}
\newcommand\EXIST[1]{\exists #1\mathpunct{:}\bk}
\newcommand\caret{\mathbin{\hat{\ }}}
% Lines. \proofline{blocks around it}{number}{statement}{annotation}
\newdimen\blockindent
\newdimen\numberwidth
\newbox\proofbox
\newbox\oneline
\newcommand\linenumber{}
\newcommand\setaside[2]{\setbox\proofbox\vbox{%
  \hsize\dimexpr\textwidth-\numberwidth-\blockindent*#1\relax
  \leftskip2em\everypar{\kern-2em}\parindent0pt\parskip0pt\medmuskip4mu\thickmuskip5mu
  \rightskip0pt plus 4em\tolerance2000\emergencystretch.5\hsize\hbadness10000\hfuzz1pt
  \hyphenpenalty10000\exhyphenpenalty50\binoppenalty700\relpenalty500
  \clubpenalty0\widowpenalty0\interlinepenalty0\brokenpenalty0
  \noindent\ignorespaces#2\par}}
\newcommand\strutof[2]{\vrule width0pt height\dimexpr.7\baselineskip+#1 depth\dimexpr.3\baselineskip+#2}
\newcommand\handout[1]{{\splittopskip0pt\vbadness10000\vfuzz\maxdimen
  \loop
    \setbox0\vsplit\proofbox to0pt
    \setbox0\vbox{\unvbox0\global\setbox\oneline\lastbox}%
    \nointerlineskip
    \hbox to\textwidth{\hbox to\numberwidth{\linenumber\hss}\count0=#1
      \loop\ifnum\count0>0 \vrule\kern\dimexpr\blockindent-.4pt\relax\advance\count0-1 \repeat
      \strutof{1pt}{1pt}\box\oneline\hss}%
    \gdef\linenumber{}%
  \ifvoid\proofbox\else\penalty100
  \repeat}}
\newcommand\proofline[4]{%
  \setaside{#1}{\strutof{2pt}{0pt}#3\unskip\nobreak\hfil\penalty50\hskip2em\hbox{}\nobreak\hfil
    {\footnotesize\upshape #4}\parfillskip0pt\finalhyphendemerits0 }%
  \gdef\linenumber{#2}\handout{#1}%
  % Here, rather than within a line, a page ends, unless too much of it would stay empty.
  \vskip0pt plus2\baselineskip\penalty0\vskip0pt plus-2\baselineskip}
\newcommand\prooftext[2]{\penalty0\setaside{#1}{\itshape#2}\handout{#1}}
\newcommand\proofcaption[1]{{\Large\bfseries\raggedright\noindent#1\par}\nobreak\medskip}
\newenvironment{introduction}{\numberwidth0pt\let\itshape\relax}{\medskip}
\raggedbottom
\makeatother
)tex";

}  // namespace tessaryn
