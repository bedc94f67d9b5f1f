package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class ControllerInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int ctrl_name_mode;
    public String id_front;
    public String id_rear;
}
