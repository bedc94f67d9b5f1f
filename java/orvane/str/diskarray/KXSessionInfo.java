package orvane.str.diskarray;

public class KXSessionInfo {
    public byte[] session_id = new byte[32];
}
