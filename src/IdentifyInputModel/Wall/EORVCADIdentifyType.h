#pragma once

/** What is to be identified. Carried from the caller to the document and back and never looked into: the values are the
 *  caller's, and any number is one. */
enum EORVCADIdentifyType : int {};
