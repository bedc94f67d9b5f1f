package orvane.str.diskarray;

/** Leaves session_id null. */
public class KXSessionInfo {
    public byte[] session_id;
}
