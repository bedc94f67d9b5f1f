package orvane.str.diskarray;

/** A session class whose constructor leaves the token array unset. */
public class KXSessionInfo {
    public byte[] session_id;
}
